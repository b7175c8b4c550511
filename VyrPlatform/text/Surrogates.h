/// @file
/// Surrogates: the halves of characters that take two UTF-16 code units. Names may contain lone ones (Encoding.h).
#pragma once

#include <cstddef>
#include <string_view>

namespace VyrPlatform {

/// Whether `unit` is the first half of a pair.
[[nodiscard]] constexpr bool IsHighSurrogate(char16_t unit) noexcept
{
    return (unit & 0xFC00) == 0xD800;
}

/// Whether `unit` is the second half of a pair.
[[nodiscard]] constexpr bool IsLowSurrogate(char16_t unit) noexcept
{
    return (unit & 0xFC00) == 0xDC00;
}

/// Whether `unit` is either half.
[[nodiscard]] constexpr bool IsSurrogate(char16_t unit) noexcept
{
    return (unit & 0xF800) == 0xD800;
}

/// Whether `text` begins with a surrogate pair.
[[nodiscard]] constexpr bool BeginsWithPair(std::u16string_view text) noexcept
{
    return text.size() >= 2 && IsHighSurrogate(text[0]) && IsLowSurrogate(text[1]);
}

/// Whether `text` begins with a surrogate that is not part of a pair beginning there.
[[nodiscard]] constexpr bool BeginsWithLoneSurrogate(std::u16string_view text) noexcept
{
    return !text.empty() && IsSurrogate(text[0]) && !BeginsWithPair(text);
}

/// Removes and returns the first character of `text`, which is not empty. A lone surrogate counts as a character.
[[nodiscard]] constexpr char32_t TakeCharacter(std::u16string_view& text) noexcept
{
    const bool isPair = BeginsWithPair(text);
    const char32_t character =
        isPair ? 0x10000 + ((text[0] & char32_t{0x3FF}) << 10) + (text[1] & char32_t{0x3FF}) : char32_t{text[0]};
    text.remove_prefix(isPair ? 2 : 1);
    return character;
}

} // namespace VyrPlatform
