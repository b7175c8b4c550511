/// @file
/// Where the picture readers get their bytes: a file or memory, a few at a time.
#pragma once

#include <VyrPlatform/files/FileReader.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace VyrLibraryUtils::Pictures {

/// Bytes of a known size, fetched in small pieces.
class ByteSource
{
public:
    /// The most bytes that one Fetch may ask for.
    static constexpr std::size_t maximumFetch = 1024;

    ByteSource(const ByteSource&) = delete;
    ByteSource& operator=(const ByteSource&) = delete;
    virtual ~ByteSource() = default;

    [[nodiscard]] std::uint64_t Size() const noexcept { return m_size; }
    /// The `count` bytes at `offset`, 1 to maximumFetch of them, valid until the next Fetch; an empty view unless all
    /// of them are there.
    [[nodiscard]] virtual std::string_view Fetch(std::uint64_t offset, std::size_t count) = 0;

protected:
    explicit ByteSource(std::uint64_t size) : m_size(size) {}
    [[nodiscard]] bool Holds(std::uint64_t offset, std::size_t count) const noexcept
    {
        return count <= m_size && offset <= m_size - count;
    }

private:
    std::uint64_t m_size;
};

/// A file's bytes. What a picture says about itself mostly stands at its beginning, which has been read already; beyond
/// it, one small window moves to where it is wanted.
class FileSource final : public ByteSource
{
public:
    /// How much of a file's beginning is worth reading at once: enough for the tags of almost every JPEG.
    static constexpr std::size_t beginningSize = 2048;

    /// `beginning` is what was read of `file` when it was opened. Both must outlive this source.
    FileSource(const VyrPlatform::FileReader& file, std::string_view beginning)
        : ByteSource(file.Size()), m_file(file), m_beginning(beginning)
    {}
    [[nodiscard]] std::string_view Fetch(std::uint64_t offset, std::size_t count) override;

private:
    const VyrPlatform::FileReader& m_file;
    std::string_view m_beginning;
    std::size_t m_windowSize = 0;
    std::uint64_t m_windowOffset = 0;
    std::array<char, maximumFetch> m_window;
};

/// Bytes in memory.
class MemorySource final : public ByteSource
{
public:
    /// `bytes` must outlive this source.
    explicit MemorySource(std::string_view bytes) : ByteSource(bytes.size()), m_bytes(bytes) {}
    [[nodiscard]] std::string_view Fetch(std::uint64_t offset, std::size_t count) override;

private:
    std::string_view m_bytes;
};

} // namespace VyrLibraryUtils::Pictures
