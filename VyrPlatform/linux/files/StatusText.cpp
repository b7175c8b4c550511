#include "StatusText.h"

#include <VyrPlatform/text/Digits.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace VyrPlatform {

namespace {

constexpr mode_t permissions = 07777;

} // namespace

std::string ToModeText(mode_t mode)
{
    char text[8];
    const int length = std::snprintf(text, sizeof text, "%04o", mode & permissions);
    return {text, static_cast<std::size_t>(length)};
}

std::optional<mode_t> ReadModeText(std::string_view text)
{
    const auto mode = ReadWhole(text, 8);
    if (!mode || *mode < 0 || *mode > static_cast<std::int64_t>(permissions))
        return std::nullopt;
    return static_cast<mode_t>(*mode);
}

std::string ToTimeText(const struct timespec& time)
{
    char text[48];
    const int length =
        std::snprintf(text, sizeof text, "%lld.%09ld", static_cast<long long>(time.tv_sec), time.tv_nsec);
    return {text, static_cast<std::size_t>(length)};
}

std::optional<struct timespec> ReadTimeText(std::string_view text)
{
    const std::size_t point = text.find('.');
    if (point == std::string_view::npos)
        return std::nullopt;
    const auto seconds = ReadWhole(text.substr(0, point));
    const auto nanoseconds = ReadWhole(text.substr(point + 1));
    if (!seconds || !nanoseconds || *nanoseconds < 0 || *nanoseconds > 999'999'999)
        return std::nullopt;
    return timespec{static_cast<time_t>(*seconds), static_cast<long>(*nanoseconds)};
}

} // namespace VyrPlatform
