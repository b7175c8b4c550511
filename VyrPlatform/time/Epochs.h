/// @file
/// The epochs of the systems' clocks, and their units.
#pragma once

#include <cstdint>

namespace VyrPlatform {

/// FileTicks count intervals of 100 nanoseconds since 1 January 1601.
inline constexpr std::int64_t ticksPerSecond = 10'000'000;
/// From 1 January 1601 to 1 January 1970, where Unix time begins.
inline constexpr std::int64_t secondsToUnixEpoch = 11'644'473'600;
inline constexpr std::int64_t secondsPerDay = 86'400;

} // namespace VyrPlatform
