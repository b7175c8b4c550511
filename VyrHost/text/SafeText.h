/// @file
/// Escapes control characters in names: a terminal would obey them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace VyrHost::Text {

/// `text` as UTF-8 without characters that affect a terminal: control characters, characters that change the direction
/// of writing, and lone surrogates become escapes (`\n`, `\x1b`, `\u202e`, `\udcff`).
[[nodiscard]] std::string SafeText(std::u16string_view text);

/// Appends SafeText(text) to `line`.
void AppendSafeText(std::string& line, std::u16string_view text);

/// How many columns SafeText(text) takes.
[[nodiscard]] int SafeWidth(std::u16string_view text);

/// 0 for a character that is drawn over the one before it, 2 for a wide one (East Asian Width W and F), else 1.
[[nodiscard]] int CharacterWidth(char32_t character);

/// How many bytes an escape has.
inline constexpr std::size_t unitEscapeLength = 6;

/// Appends a backslash, "u" and the four hexadecimal digits of `unit`.
void AppendUnitEscape(std::string& text, char16_t unit);

/// The unit whose escape `text` begins with; nothing when it does not begin with one.
[[nodiscard]] std::optional<char16_t> ReadUnitEscape(std::string_view text) noexcept;

} // namespace VyrHost::Text
