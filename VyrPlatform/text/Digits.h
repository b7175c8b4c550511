/// @file
/// Bytes and numbers as ASCII digits, for texts that are read again.
#pragma once

#include <VyrPlatform/Export.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace VyrPlatform {

/// Whether `unit` is a decimal digit of ASCII.
[[nodiscard]] constexpr bool IsDigit(char16_t unit) noexcept
{
    return unit >= u'0' && unit <= u'9';
}

/// Bytes in hexadecimal.
[[nodiscard]] VYR_PLATFORM_API std::string ToHex(std::string_view bytes);
/// The inverse; nothing for a text that is not a result of ToHex.
[[nodiscard]] VYR_PLATFORM_API std::optional<std::string> FromHex(std::string_view text);

/// The number in `base` that is all of `text`; nothing when it is not a number.
[[nodiscard]] VYR_PLATFORM_API std::optional<std::int64_t> ReadWhole(std::string_view text, int base = 10);

} // namespace VyrPlatform
