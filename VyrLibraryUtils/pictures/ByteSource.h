/// @file
/// Where the picture readers get their bytes: a file or memory, a few at a time.
#pragma once

#include <VyrLibraryUtils/Export.h>
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
    /// The `count` bytes (1 to maximumFetch) at `offset`, valid until the next Fetch. An empty view when the source
    /// ends before.
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

/// The bytes of a file. Most pictures keep their tags at the beginning, which the caller has read already; the rest is
/// read through one small window.
class VYR_UTILS_API FileSource final : public ByteSource
{
public:
    /// The size of the beginning that is read at once, in bytes: it holds the tags of almost every JPEG.
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
class VYR_UTILS_API MemorySource final : public ByteSource
{
public:
    /// `bytes` must outlive this source.
    explicit MemorySource(std::string_view bytes) : ByteSource(bytes.size()), m_bytes(bytes) {}
    [[nodiscard]] std::string_view Fetch(std::uint64_t offset, std::size_t count) override;

private:
    std::string_view m_bytes;
};

} // namespace VyrLibraryUtils::Pictures
