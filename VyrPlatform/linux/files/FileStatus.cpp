#include "FileStatus.h"

#include <VyrPlatform/time/Epochs.h>

#include <algorithm>
#include <limits>

namespace VyrPlatform {

namespace {

constexpr FileTicks nanosecondsPerTick = 100;
constexpr FileTicks lastSecond = std::numeric_limits<FileTicks>::max() / ticksPerSecond - 1;

} // namespace

FileTicks ToTicks(const struct statx_timestamp& time) noexcept
{
    const FileTicks unixSeconds = std::clamp<FileTicks>(time.tv_sec, -lastSecond, lastSecond - secondsToUnixEpoch);
    return (unixSeconds + secondsToUnixEpoch) * ticksPerSecond + time.tv_nsec / nanosecondsPerTick;
}

struct timespec ToTimespec(FileTicks ticks) noexcept
{
    // The fraction also counts forward before 1601.
    const FileTicks fraction = (ticks % ticksPerSecond + ticksPerSecond) % ticksPerSecond;
    return {(ticks - fraction) / ticksPerSecond - secondsToUnixEpoch, fraction * nanosecondsPerTick};
}

} // namespace VyrPlatform
