/// @file
/// A bounded part of a picture's bytes, and a cursor that reads numbers from it.
#pragma once

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

/// A part of a source. Nothing outside it can be read through it, and no part of it reaches further than it does.
class ByteView
{
public:
    /// All of `source`, which must outlive the view.
    explicit ByteView(ByteSource& source) : m_source(&source), m_begin(0), m_size(source.Size()) {}

    [[nodiscard]] std::uint64_t Size() const noexcept { return m_size; }
    /// What lies from `offset` on; empty when that is past the end.
    [[nodiscard]] ByteView From(std::uint64_t offset) const { return Part(offset, m_size); }
    /// At most `size` bytes from `offset` on: fewer when the view ends before.
    [[nodiscard]] ByteView Part(std::uint64_t offset, std::uint64_t size) const;
    /// The `count` bytes at `offset` (1 to ByteSource::maximumFetch), valid until the next read; an empty view unless
    /// all of them are there.
    [[nodiscard]] std::string_view Fetch(std::uint64_t offset, std::size_t count) const;
    [[nodiscard]] bool StartsWith(std::string_view bytes) const;
    /// A copy of the first `limit` bytes, or of as many as are there.
    [[nodiscard]] std::string Copy(std::size_t limit) const;

private:
    ByteSource* m_source;
    std::uint64_t m_begin;
    std::uint64_t m_size;
};

/// The number that `bytes` (1 to 8 of them) are in `order`.
[[nodiscard]] inline std::uint64_t ToUnsigned(std::string_view bytes, ByteOrder order)
{
    const auto append = [](std::uint64_t value, char byte) {
        return value << 8 | static_cast<unsigned char>(byte);
    };
    return order == ByteOrder::Big ? std::accumulate(bytes.begin(), bytes.end(), std::uint64_t{0}, append)
                                   : std::accumulate(bytes.rbegin(), bytes.rend(), std::uint64_t{0}, append);
}

/// Reads a view from its start on. A read that does not find all its bytes gives zero and makes every later one do so
/// too, so that a run of reads needs one test at its end.
class ByteCursor
{
public:
    ByteCursor(ByteView view, ByteOrder order) : m_view(view), m_order(order) {}

    /// The next `width` bytes, 0 to 8, as a number; no bytes are a zero.
    [[nodiscard]] std::uint64_t Unsigned(std::size_t width);
    [[nodiscard]] std::uint8_t U8() { return static_cast<std::uint8_t>(Unsigned(1)); }
    [[nodiscard]] std::uint16_t U16() { return static_cast<std::uint16_t>(Unsigned(2)); }
    [[nodiscard]] std::uint32_t U32() { return static_cast<std::uint32_t>(Unsigned(4)); }
    /// The next `count` bytes (1 to ByteSource::maximumFetch), valid until the next read; empty when not all are there.
    [[nodiscard]] std::string_view Bytes(std::size_t count);
    /// Passes over `count` bytes.
    void Skip(std::uint64_t count);
    /// The next `size` bytes as a view, and passes over them; cut at the end of what there is.
    [[nodiscard]] ByteView Take(std::uint64_t size);
    [[nodiscard]] std::uint64_t Remaining() const noexcept { return m_view.Size(); }
    [[nodiscard]] bool Failed() const noexcept { return m_failed; }

private:
    /// What is still to be read.
    ByteView m_view;
    ByteOrder m_order;
    bool m_failed = false;
};

} // namespace VyrLibraryUtils::Pictures
