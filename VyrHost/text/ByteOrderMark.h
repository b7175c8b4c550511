/// @file
/// The mark that some editors put in front of UTF-8 text.
#pragma once

#include <string_view>

namespace VyrHost::Text {

/// `bytes` behind a mark of UTF-8, if they begin with one.
[[nodiscard]] inline std::string_view SkipByteOrderMark(std::string_view bytes)
{
    constexpr std::string_view Mark = "\xEF\xBB\xBF";
    return bytes.substr(bytes.starts_with(Mark) ? Mark.size() : 0);
}

} // namespace VyrHost::Text
