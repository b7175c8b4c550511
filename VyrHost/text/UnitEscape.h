/// @file
/// The escape that stands for one code unit, as JSON writes it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace VyrHost::Text {

/// How many bytes an escape has.
inline constexpr std::size_t UnitEscapeLength = 6;

/// Appends a backslash, "u" and the four hexadecimal digits of `unit`.
void AppendUnitEscape(std::string& text, char16_t unit);

/// The unit whose escape `text` begins with; nothing when it begins with none.
[[nodiscard]] std::optional<char16_t> ReadUnitEscape(std::string_view text) noexcept;

} // namespace VyrHost::Text
