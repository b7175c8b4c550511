// All bounds checks of the picture readers are here: no view reaches outside its source.
#include <VyrLibraryUtils/pictures/ByteView.h>

#include <algorithm>

namespace VyrLibraryUtils::Pictures {

ByteView ByteView::Part(std::uint64_t offset, std::uint64_t size) const
{
    ByteView part = *this;
    const std::uint64_t skipped = std::min(offset, m_size);
    part.m_begin = m_begin + skipped;
    part.m_size = std::min(size, m_size - skipped);
    return part;
}

std::string_view ByteView::Fetch(std::uint64_t offset, std::size_t count) const
{
    if (count > m_size || offset > m_size - count)
        return {};
    return m_source->Fetch(m_begin + offset, count);
}

bool ByteView::StartsWith(std::string_view bytes) const
{
    return Fetch(0, bytes.size()) == bytes;
}

std::string ByteView::Copy(std::size_t limit) const
{
    const std::size_t size = static_cast<std::size_t>(std::min<std::uint64_t>(limit, m_size));
    std::string copy;
    copy.reserve(size);
    while (copy.size() < size) {
        const std::string_view piece = Fetch(copy.size(), std::min(size - copy.size(), ByteSource::maximumFetch));
        if (piece.empty())
            break;
        copy += piece;
    }
    return copy;
}

std::uint64_t ByteCursor::Unsigned(std::size_t width)
{
    return width == 0 ? 0 : ToUnsigned(Bytes(width), m_order);
}

std::string_view ByteCursor::Bytes(std::size_t count)
{
    const std::string_view bytes = m_view.Fetch(0, count);
    m_failed = m_failed || bytes.empty();
    Skip(count);
    return bytes;
}

void ByteCursor::Skip(std::uint64_t count)
{
    m_failed = m_failed || count > m_view.Size();
    m_view = m_failed ? m_view.Part(0, 0) : m_view.From(count);
}

ByteView ByteCursor::Take(std::uint64_t size)
{
    const ByteView part = m_view.Part(0, size);
    m_view = m_view.From(size);
    return part;
}

} // namespace VyrLibraryUtils::Pictures
