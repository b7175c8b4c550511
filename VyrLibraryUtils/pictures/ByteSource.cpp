#include <VyrLibraryUtils/pictures/ByteSource.h>

#include <algorithm>
#include <span>

namespace VyrLibraryUtils::Pictures {

std::string_view FileSource::Fetch(std::uint64_t offset, std::size_t count)
{
    if (!Holds(offset, count))
        return {};
    if (offset + count <= m_beginning.size())
        return m_beginning.substr(static_cast<std::size_t>(offset), count);
    if (offset < m_windowOffset || offset + count > m_windowOffset + m_windowSize) {
        // A read past the end would cost one more call.
        const auto size = static_cast<std::size_t>(std::min<std::uint64_t>(m_window.size(), Size() - offset));
        m_windowOffset = offset;
        m_windowSize = m_file.ReadAt(offset, std::as_writable_bytes(std::span(m_window).first(size)));
    }
    if (count > m_windowSize)
        return {};
    return std::string_view(m_window.data() + (offset - m_windowOffset), count);
}

std::string_view MemorySource::Fetch(std::uint64_t offset, std::size_t count)
{
    return Holds(offset, count) ? m_bytes.substr(static_cast<std::size_t>(offset), count) : std::string_view();
}

} // namespace VyrLibraryUtils::Pictures
