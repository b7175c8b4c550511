// Turns the system's file times into ticks.
#include "FileStatus.h"

#include <algorithm>
#include <limits>

namespace VyrPlatform {

namespace {

constexpr FileTicks ticksPerSecond = 10'000'000;
constexpr FileTicks nanosecondsPerTick = 100;
/// From 1 January 1601 to 1 January 1970.
constexpr FileTicks secondsToUnixEpoch = 11'644'473'600;
constexpr FileTicks lastSecond = std::numeric_limits<FileTicks>::max() / ticksPerSecond - 1;

} // namespace

FileTicks ToTicks(const struct statx_timestamp& time) noexcept
{
    const FileTicks unixSeconds = std::clamp<FileTicks>(time.tv_sec, -lastSecond, lastSecond - secondsToUnixEpoch);
    return (unixSeconds + secondsToUnixEpoch) * ticksPerSecond + time.tv_nsec / nanosecondsPerTick;
}

struct timespec ToTimespec(FileTicks ticks) noexcept
{
    // The fraction counts forward before 1601, too.
    const FileTicks fraction = (ticks % ticksPerSecond + ticksPerSecond) % ticksPerSecond;
    return {(ticks - fraction) / ticksPerSecond - secondsToUnixEpoch, fraction * nanosecondsPerTick};
}

} // namespace VyrPlatform
