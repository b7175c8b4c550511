/// @file
/// The texts that the groups of a pattern matched in a name, for replacements and for later templates.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace VyrHost::Rename {

/// The name of a group, and its number.
struct GroupName
{
    CString name;
    std::size_t number = 0;
};

/// The groups of a pattern.
struct PatternShape
{
    /// Their number, without the whole match.
    std::size_t count = 0;
    std::vector<GroupName> names = {};
};

/// The groups of the last match of a pattern in one name. Numbers count from 1 on; 0 is the whole match.
class PatternGroups
{
public:
    /// The range of a group, in code units; `begin` is `noPlace` for one that did not match.
    struct Range
    {
        std::size_t begin = 0;
        std::size_t length = 0;
    };
    static constexpr std::size_t noPlace = static_cast<std::size_t>(-1);

    /// Whether a pattern matched.
    [[nodiscard]] bool HasMatched() const { return !m_ranges.empty(); }
    /// The text of the group `number`: empty for one that did not match, nothing if no pattern matched or it has no
    /// such group. The view is valid as long as this object is unchanged.
    [[nodiscard]] std::optional<std::u16string_view> Find(std::size_t number) const;
    /// The same by name. Of several groups with the name, the first one that matched counts.
    [[nodiscard]] std::optional<std::u16string_view> Find(std::u16string_view name) const;

    void Clear() { m_ranges.clear(); }
    /// @param text    the name that the pattern matched in.
    /// @param ranges  the range of each group, the whole match first.
    /// @param names  the names of the groups; must outlive this object.
    void Set(const CString& text, const std::vector<Range>& ranges, const std::vector<GroupName>& names);

private:
    CString m_text;
    std::vector<Range> m_ranges;
    const std::vector<GroupName>* m_names = nullptr;
};

} // namespace VyrHost::Rename
