// The texts of ExactState: numbers, and bytes in hexadecimal, separated by blanks.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace VyrPlatform {

[[nodiscard]] std::string ToHex(std::string_view bytes);
/// The inverse; nothing for a text that ToHex does not give.
[[nodiscard]] std::optional<std::string> FromHex(std::string_view text);

/// All of `text` as a number in `base`; nothing when it is none.
[[nodiscard]] std::optional<std::int64_t> ReadWhole(std::string_view text, int base = 10);

/// Cuts the text before the next blank off the front of `text`.
[[nodiscard]] std::string_view TakeWord(std::string_view& text) noexcept;

/// The bytes of a state; empty for one that is not ASCII.
[[nodiscard]] std::string StateBytes(const CString& state);

} // namespace VyrPlatform
