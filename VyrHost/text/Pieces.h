/// @file
/// The pieces of texts that are cut at marks, such as those of the journal.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace VyrHost::Text {

/// Removes and returns the part of `text` before the next `mark`, and removes the mark; without a mark all of it.
[[nodiscard]] std::u16string_view TakeUpTo(std::u16string_view& text, char16_t mark);

/// See VyrPlatform/text/Digits.h.
[[nodiscard]] std::optional<std::int64_t> ReadWhole(std::u16string_view text, int base = 10);
[[nodiscard]] std::u16string ToHex(std::string_view bytes);
[[nodiscard]] std::optional<std::string> FromHex(std::u16string_view text);

} // namespace VyrHost::Text
