/// @file
/// Counters in templates: how they are written, and where they start anew.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>

namespace VyrHost::Rename {

/// What a counter starts anew for.
enum class CounterScope : std::uint8_t
{
    /// Nothing: it counts as sequence numbers do.
    WholeList,
    /// Each folder that entries get into.
    Folder,
    /// Each day of the template's date.
    Day,
    /// Each new name, the counters left out.
    Name
};

enum class CounterStyle : std::uint8_t
{
    Decimal,
    Hex,
    /// a to z, then aa.
    Letters,
    /// I to MMMCMXCIX.
    Roman
};

struct CounterForm
{
    CounterScope scope = CounterScope::WholeList;
    CounterStyle style = CounterStyle::Decimal;
    int start = 1;
    int step = 1;
    /// The least width, filled up with zeros; of decimal and hexadecimal numbers.
    int width = 1;
};

/// Reads the option of a counter: "start N", "step N", "per folder|day|name" and "roman", "letters" or "hex", each once
/// and in any order, separated by blanks.
/// @param width  how many "#" the counter has.
/// @return what is wrong with it, in words; null when nothing is.
[[nodiscard]] const char* ParseCounter(std::u16string_view option, std::size_t width, CounterForm& form);

/// `number` in that form; nothing for a number that the style does not have.
[[nodiscard]] std::optional<CString> WriteCounter(std::int64_t number, const CounterForm& form);

/// Counts, from 0 on, how many groups of entries were counted with a key.
class KeyedCounts
{
public:
    /// The place of `group` among those with `key`. A group that is asked for again keeps its place; where it now has
    /// another key, the place that it had is given back. Groups are asked for one after the other.
    [[nodiscard]] std::int64_t PlaceOf(std::size_t group, const CString& key);

private:
    std::unordered_map<CString, std::int64_t> m_counts;
    std::size_t m_group = 0;
    /// Of the group that was asked for last; nothing before the first.
    std::optional<CString> m_key;
};

} // namespace VyrHost::Rename
