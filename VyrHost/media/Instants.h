/// @file
/// Instants as the formats of media count them.
#pragma once

#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/time/Epochs.h>

#include <cstdint>
#include <optional>

namespace VyrHost::Media {

/// From 1601, when file times begin, to 1904 and to 2001.
inline constexpr std::int64_t secondsTo1904 = 9'561'628'800;
inline constexpr std::int64_t secondsTo2001 = 12'622'780'800;

/// The instant `seconds` after 1601; nothing outside the years 1601 to 9999.
[[nodiscard]] inline std::optional<VyrPlatform::FileTicks> InstantOf(std::int64_t seconds)
{
    constexpr std::int64_t endOf9999 = 265'046'774'400;
    return seconds >= 0 && seconds < endOf9999 ? std::optional(seconds * VyrPlatform::ticksPerSecond) : std::nullopt;
}

} // namespace VyrHost::Media
