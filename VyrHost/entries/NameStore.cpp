// Keeps texts one behind another in blocks.
#include <VyrHost/entries/NameStore.h>

#include <algorithm>

namespace VyrHost {

namespace {

constexpr std::size_t BlockLength = std::size_t{1} << 16;

} // namespace

std::u16string_view NameStore::Keep(std::u16string_view text)
{
    if (text.size() > m_left) {
        m_left = std::max(BlockLength, text.size());
        m_blocks.push_back(std::make_unique_for_overwrite<char16_t[]>(m_left));
        m_free = m_blocks.back().get();
    }
    char16_t* const kept = m_free;
    std::copy(text.begin(), text.end(), kept);
    m_free += text.size();
    m_left -= text.size();
    return {kept, text.size()};
}

} // namespace VyrHost
