/// @file
/// Names made safe to show: a name may hold anything, a terminal obeys some of it.
#pragma once

#include <string>
#include <string_view>

namespace VyrHost::Text {

/// `text` as UTF-8 in which nothing acts on a terminal: control characters and what turns the direction of writing
/// stand as escapes (`\n`, `\x1b`, `\u202e`), lone surrogates too (`\udcff`).
[[nodiscard]] std::string SafeText(std::u16string_view text);

/// Appends SafeText(text) to `line`.
void AppendSafeText(std::string& line, std::u16string_view text);

/// How many columns SafeText(text) takes.
[[nodiscard]] int SafeWidth(std::u16string_view text);

} // namespace VyrHost::Text
