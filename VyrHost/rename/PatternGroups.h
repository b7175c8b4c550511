/// @file
/// What the groups of a pattern matched in a name: rules put it into names, and so do the templates behind them.
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

/// Which groups a pattern has.
struct PatternShape
{
    /// How many, the whole match left out.
    std::size_t count = 0;
    std::vector<GroupName> names = {};
};

/// The groups of the last match of a pattern in one name. Numbers count from 1 on; 0 is the whole match.
class PatternGroups
{
public:
    /// Where a group matched, in code units; `begin` is `noPlace` for one that took no part.
    struct Range
    {
        std::size_t begin = 0;
        std::size_t length = 0;
    };
    static constexpr std::size_t noPlace = static_cast<std::size_t>(-1);

    /// Whether a pattern matched.
    [[nodiscard]] bool HasMatched() const { return !m_ranges.empty(); }
    /// What the group `number` matched: empty for one that took no part, nothing where no pattern matched or it has no
    /// such group. The view is valid as long as the groups are.
    [[nodiscard]] std::optional<std::u16string_view> Find(std::size_t number) const;
    /// Likewise by name. Of several groups with the name, the first that took part counts.
    [[nodiscard]] std::optional<std::u16string_view> Find(std::u16string_view name) const;

    void Clear() { m_ranges.clear(); }
    /// @param text    the name that the pattern matched in.
    /// @param ranges  one for each group, the whole match first.
    /// @param names   of the groups; they must outlive this.
    void Set(const CString& text, const std::vector<Range>& ranges, const std::vector<GroupName>& names);

private:
    CString m_text;
    std::vector<Range> m_ranges;
    const std::vector<GroupName>* m_names = nullptr;
};

} // namespace VyrHost::Rename
