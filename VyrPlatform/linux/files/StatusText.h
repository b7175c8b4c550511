// Modes and times in the texts of states.
#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace VyrPlatform {

/// The permissions of a mode in four octal digits: "0644".
[[nodiscard]] std::string ToModeText(mode_t mode);
/// The inverse; nothing for any other text.
[[nodiscard]] std::optional<mode_t> ReadModeText(std::string_view text);

/// The seconds since 1970 and nine digits of nanoseconds: "1704450600.000000005".
[[nodiscard]] std::string ToTimeText(const struct timespec& time);
/// The inverse; nothing for any other text.
[[nodiscard]] std::optional<struct timespec> ReadTimeText(std::string_view text);

} // namespace VyrPlatform
