/// @file
/// A bounded part of a picture's bytes, and a cursor that reads numbers from it.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrLibraryUtils/pictures/ByteSource.h>

#include <cstddef>
#include <cstdint>
#include <numeric>
#include <string>
#include <string_view>

namespace VyrLibraryUtils::Pictures {

enum class ByteOrder : std::uint8_t
{
    Little,
    Big
};

/// A part of a source. Bytes outside it cannot be read through it, nor through its own parts.
class VYR_UTILS_API ByteView
{
public:
    /// All of `source`, which must outlive the view.
    explicit ByteView(ByteSource& source) : m_source(&source), m_begin(0), m_size(source.Size()) {}

    [[nodiscard]] std::uint64_t Size() const noexcept { return m_size; }
    /// The bytes from `offset` to the end; empty when `offset` is past the end.
    [[nodiscard]] ByteView From(std::uint64_t offset) const { return Part(offset, m_size); }
    /// At most `size` bytes from `offset` on: fewer when the view ends before.
    [[nodiscard]] ByteView Part(std::uint64_t offset, std::uint64_t size) const;
    /// The `count` bytes (1 to ByteSource::maximumFetch) at `offset`, valid until the next read. An empty view when
    /// this view ends before.
    [[nodiscard]] std::string_view Fetch(std::uint64_t offset, std::size_t count) const;
    [[nodiscard]] bool StartsWith(std::string_view bytes) const;
    /// A copy of the first `limit` bytes, or of all bytes when there are fewer.
    [[nodiscard]] std::string Copy(std::size_t limit) const;

private:
    ByteSource* m_source;
    std::uint64_t m_begin;
    std::uint64_t m_size;
};

/// The number that `bytes` (1 to 8) form in `order`: `12 34` is 0x1234 in big-endian order.
[[nodiscard]] inline std::uint64_t ToUnsigned(std::string_view bytes, ByteOrder order)
{
    const auto append = [](std::uint64_t value, char byte) {
        return value << 8 | static_cast<unsigned char>(byte);
    };
    return order == ByteOrder::Big ? std::accumulate(bytes.begin(), bytes.end(), std::uint64_t{0}, append)
                                   : std::accumulate(bytes.rbegin(), bytes.rend(), std::uint64_t{0}, append);
}

/// Reads a view from its start to its end. A read past the end gives zero, and so does every later read: one test of
/// Failed after several reads is enough.
class VYR_UTILS_API ByteCursor
{
public:
    ByteCursor(ByteView view, ByteOrder order) : m_view(view), m_order(order) {}

    /// The next `width` bytes (0 to 8) as a number; 0 bytes give 0.
    [[nodiscard]] std::uint64_t Unsigned(std::size_t width);
    [[nodiscard]] std::uint8_t U8() { return static_cast<std::uint8_t>(Unsigned(1)); }
    [[nodiscard]] std::uint16_t U16() { return static_cast<std::uint16_t>(Unsigned(2)); }
    [[nodiscard]] std::uint32_t U32() { return static_cast<std::uint32_t>(Unsigned(4)); }
    /// The next `count` bytes (1 to ByteSource::maximumFetch), valid until the next read; empty when the view ends
    /// before.
    [[nodiscard]] std::string_view Bytes(std::size_t count);
    /// Skips `count` bytes.
    void Skip(std::uint64_t count);
    /// The next `size` bytes as a view, which the cursor skips; fewer when the view ends before.
    [[nodiscard]] ByteView Take(std::uint64_t size);
    [[nodiscard]] std::uint64_t Remaining() const noexcept { return m_view.Size(); }
    [[nodiscard]] bool Failed() const noexcept { return m_failed; }

private:
    /// The bytes that are not read yet.
    ByteView m_view;
    ByteOrder m_order;
    bool m_failed = false;
};

} // namespace VyrLibraryUtils::Pictures
