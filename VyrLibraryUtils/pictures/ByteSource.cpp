// The two sources of bytes that the picture readers know.
#include <VyrLibraryUtils/pictures/ByteSource.h>

#include <algorithm>
#include <span>

namespace VyrLibraryUtils::Pictures {
namespace {

/// Fills `buffer` from `offset` on, as far as the file reaches: asking for more would cost one more call.
std::size_t Fill(const VyrPlatform::FileReader& file, std::uint64_t offset, std::span<char> buffer)
{
    const std::uint64_t size = std::min<std::uint64_t>(buffer.size(), file.Size() - offset);
    return file.ReadAt(offset, std::as_writable_bytes(buffer.first(static_cast<std::size_t>(size))));
}

} // namespace

std::string_view FileSource::Fetch(std::uint64_t offset, std::size_t count)
{
    if (!Holds(offset, count))
        return {};
    if (offset + count <= HeadSize) {
        if (m_headLength == 0)
            m_headLength = Fill(m_file, 0, m_head);
        if (offset + count > m_headLength)
            return {};
        return std::string_view(m_head.data() + offset, count);
    }
    if (offset < m_windowOffset || offset + count > m_windowOffset + m_windowLength) {
        m_windowOffset = offset;
        m_windowLength = Fill(m_file, offset, m_window);
    }
    if (count > m_windowLength)
        return {};
    return std::string_view(m_window.data() + (offset - m_windowOffset), count);
}

std::string_view MemorySource::Fetch(std::uint64_t offset, std::size_t count)
{
    return Holds(offset, count) ? m_bytes.substr(static_cast<std::size_t>(offset), count) : std::string_view();
}

} // namespace VyrLibraryUtils::Pictures
