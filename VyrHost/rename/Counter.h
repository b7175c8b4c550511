/// @file
/// Counters in templates: their styles, and where they restart.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>

namespace VyrHost::Rename {

/// Where a counter restarts.
enum class CounterScope : std::uint8_t
{
    /// Nowhere: it counts like sequence numbers.
    WholeList,
    /// In each destination folder.
    Folder,
    /// For each day of the template's date.
    Day,
    /// For each new name, without its counters.
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
    /// The minimum width of decimal and hexadecimal numbers, padded with zeros.
    int width = 1;
};

/// Parses the option of a counter: "start N", "step N", "per folder|day|name" and "roman", "letters" or "hex", each at
/// most once, in any order, separated by blanks.
/// @param width  the number of "#" in the counter.
/// @return the fault, in words; null for none.
[[nodiscard]] const char* ParseCounter(std::u16string_view option, std::size_t width, CounterForm& form);

/// `number` in this form; nothing for a number that the style cannot represent.
[[nodiscard]] std::optional<CString> WriteCounter(std::int64_t number, const CounterForm& form);

/// Counts groups of entries by key, from 0.
class KeyedCounts
{
public:
    /// The index of `group` among those with `key`. A repeated call for the last group returns the same index; with
    /// another key it releases the old one. Call it for one group after the other.
    [[nodiscard]] std::int64_t PlaceOf(std::size_t group, const CString& key);

private:
    std::unordered_map<CString, std::int64_t> m_counts;
    std::size_t m_group = 0;
    /// The key of the last group; nothing before the first.
    std::optional<CString> m_key;
};

} // namespace VyrHost::Rename
