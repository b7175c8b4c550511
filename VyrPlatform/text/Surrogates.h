/// @file
/// The halves of the characters that take two code units of UTF-16. In a name a half may stand alone (Encoding.h).
#pragma once

#include <cstddef>
#include <string_view>

namespace VyrPlatform {

/// Whether `unit` is the first half of a character.
[[nodiscard]] constexpr bool IsHighSurrogate(char16_t unit) noexcept
{
    return (unit & 0xFC00) == 0xD800;
}

/// Whether `unit` is the second half of a character.
[[nodiscard]] constexpr bool IsLowSurrogate(char16_t unit) noexcept
{
    return (unit & 0xFC00) == 0xDC00;
}

/// Whether `unit` is either half.
[[nodiscard]] constexpr bool IsSurrogate(char16_t unit) noexcept
{
    return (unit & 0xF800) == 0xD800;
}

/// Whether `text` begins with both halves of a character.
[[nodiscard]] constexpr bool BeginsWithPair(std::u16string_view text) noexcept
{
    return text.size() >= 2 && IsHighSurrogate(text[0]) && IsLowSurrogate(text[1]);
}

/// Whether `text` begins with a half that is not one of a pair that begins there.
[[nodiscard]] constexpr bool BeginsWithLoneSurrogate(std::u16string_view text) noexcept
{
    return !text.empty() && IsSurrogate(text[0]) && !BeginsWithPair(text);
}

/// Takes the first character off `text`, which is not empty. A lone surrogate is one of its own.
[[nodiscard]] constexpr char32_t TakeCharacter(std::u16string_view& text) noexcept
{
    const bool isPair = BeginsWithPair(text);
    const char32_t character =
        isPair ? 0x10000 + ((text[0] & char32_t{0x3FF}) << 10) + (text[1] & char32_t{0x3FF}) : char32_t{text[0]};
    text.remove_prefix(isPair ? 2 : 1);
    return character;
}

} // namespace VyrPlatform
