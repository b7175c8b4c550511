/// @file
/// An open file for the content readers.
#pragma once

#include <VyrHost/media/Music.h>
#include <VyrLibraryUtils/pictures/ByteSource.h>
#include <VyrPlatform/files/FileReader.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace VyrHost::Media {

class OpenFile final : public MusicBytes
{
public:
    explicit OpenFile(const CString& path)
        : m_file(path, std::as_writable_bytes(std::span(m_beginning))),
          m_source(m_file, std::string_view(m_beginning.data(), m_file.BeginningSize()))
    {}

    [[nodiscard]] bool IsOpen() const { return m_file.IsOpen(); }
    /// The system's error code if the file at `path` did not open; 0 if it did, and for folders and devices.
    [[nodiscard]] std::uint32_t ErrorFor(const CString& path) const;
    [[nodiscard]] VyrLibraryUtils::Pictures::ByteSource& Source() { return m_source; }
    [[nodiscard]] std::uint64_t Size() const override { return m_file.Size(); }
    [[nodiscard]] std::size_t ReadAt(std::uint64_t offset, std::span<std::byte> buffer) const override
    {
        return m_file.ReadAt(offset, buffer);
    }

private:
    std::array<char, VyrLibraryUtils::Pictures::FileSource::beginningSize> m_beginning;
    VyrPlatform::FileReader m_file;
    VyrLibraryUtils::Pictures::FileSource m_source;
};

} // namespace VyrHost::Media
