#include <VyrHost/rename/PatternGroups.h>

namespace VyrHost::Rename {

std::optional<std::u16string_view> PatternGroups::Find(std::size_t number) const
{
    if (number >= m_ranges.size())
        return std::nullopt;
    const Range& range = m_ranges[number];
    return range.begin == noPlace ? std::u16string_view() : m_text.View().substr(range.begin, range.length);
}

std::optional<std::u16string_view> PatternGroups::Find(std::u16string_view name) const
{
    std::optional<std::u16string_view> found;
    if (!HasMatched())
        return found;
    for (const GroupName& group : *m_names) {
        if (group.name != name)
            continue;
        found = Find(group.number);
        if (m_ranges[group.number].begin != noPlace)
            break;
    }
    return found;
}

void PatternGroups::Set(const CString& text, const std::vector<Range>& ranges, const std::vector<GroupName>& names)
{
    m_text = text;
    m_ranges = ranges;
    m_names = &names;
}

} // namespace VyrHost::Rename
