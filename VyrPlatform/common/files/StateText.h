// The parts of ExactState's texts: numbers, and bytes in hexadecimal, separated by blanks.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace VyrPlatform {

[[nodiscard]] std::string ToHex(std::string_view bytes);
/// The inverse; nothing for a text that is not a result of ToHex.
[[nodiscard]] std::optional<std::string> FromHex(std::string_view text);

/// The number in `base` that is all of `text`; nothing when it is not a number.
[[nodiscard]] std::optional<std::int64_t> ReadWhole(std::string_view text, int base = 10);

/// Removes and returns the text before the next blank.
[[nodiscard]] std::string_view TakeWord(std::string_view& text) noexcept;

/// The bytes of a state; empty for one that is not ASCII.
[[nodiscard]] std::string StateBytes(const CString& state);

} // namespace VyrPlatform
