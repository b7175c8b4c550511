// For tests: the natural order of names, computed in another way than the program does.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace VyrTests {

/// A key whose standard order is the natural order of names. A number becomes "0", the count of its digits without
/// leading zeros, and these digits; a capital letter becomes a small one; the name itself follows. Not for names with
/// one of "[\]^_`", which are between the capital and the small letters.
inline std::pair<std::vector<std::uint32_t>, std::u16string> NaturalKey(std::u16string_view name)
{
    const auto isDigit = [](char16_t unit) {
        return unit >= u'0' && unit <= u'9';
    };
    std::vector<std::uint32_t> key;
    for (std::size_t at = 0; at < name.size();) {
        if (!isDigit(name[at])) {
            const std::uint32_t unit = name[at++];
            key.push_back(unit >= u'A' && unit <= u'Z' ? unit - u'A' + u'a' : unit);
            continue;
        }
        std::u16string digits;
        for (; at < name.size() && isDigit(name[at]); ++at)
            if (!digits.empty() || name[at] != u'0')
                digits += name[at];
        key.push_back(u'0');
        key.push_back(static_cast<std::uint32_t>(digits.size()));
        key.insert(key.end(), digits.begin(), digits.end());
    }
    return {key, std::u16string(name)};
}

} // namespace VyrTests
