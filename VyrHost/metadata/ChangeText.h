/// @file
/// The pieces of the texts in which the journal keeps changes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace VyrHost::Metadata {

/// Cuts what stands before the next `mark` off the front of `text`, and the mark; all of it where there is none.
[[nodiscard]] std::u16string_view TakeUpTo(std::u16string_view& text, char16_t mark);

/// All of `text` as a number in `base`; nothing when it is none.
[[nodiscard]] std::optional<std::int64_t> ReadWhole(std::u16string_view text, int base = 10);

/// Bytes in hexadecimal.
[[nodiscard]] std::u16string ToHex(std::string_view bytes);
/// The inverse; nothing for a text that ToHex does not give.
[[nodiscard]] std::optional<std::string> FromHex(std::u16string_view text);

} // namespace VyrHost::Metadata
