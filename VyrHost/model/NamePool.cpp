// Stores texts one after another in blocks.
#include <VyrHost/model/NamePool.h>

#include <algorithm>

namespace VyrHost::Model {

namespace {

constexpr std::size_t blockLength = std::size_t{1} << 16;

} // namespace

InternedName NamePool::Intern(std::u16string_view text)
{
    const std::size_t needed = InternedName::lengthUnits + text.size();
    if (needed > m_left) {
        m_left = std::max(blockLength, needed);
        m_blocks.push_back(std::make_unique_for_overwrite<char16_t[]>(m_left));
        m_free = m_blocks.back().get();
    }
    const auto length = static_cast<std::uint32_t>(text.size());
    std::memcpy(m_free, &length, sizeof(length));
    char16_t* const kept = m_free + InternedName::lengthUnits;
    std::copy(text.begin(), text.end(), kept);
    m_free += needed;
    m_left -= needed;
    return InternedName(kept);
}

} // namespace VyrHost::Model
