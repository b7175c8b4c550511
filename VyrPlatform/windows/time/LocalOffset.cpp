// Local time on Windows, by the rules of each year.
#include <VyrPlatform/common/time/LocalOffset.h>
#include <VyrPlatform/time/Epochs.h>

#include "files/FileStatus.h"

#include <algorithm>

namespace VyrPlatform {

std::optional<int> GetLocalOffset(std::int64_t unixSeconds)
{
    // The system knows no time before 1601.
    const FileTicks ticks = std::max<FileTicks>(0, unixSeconds + secondsToUnixEpoch) * ticksPerSecond;
    const FILETIME time = ToFileTime(ticks);
    SYSTEMTIME universal;
    TIME_ZONE_INFORMATION zone;
    SYSTEMTIME local;
    FILETIME localTime;
    if (!FileTimeToSystemTime(&time, &universal) || !GetTimeZoneInformationForYear(universal.wYear, nullptr, &zone) ||
        !SystemTimeToTzSpecificLocalTime(&zone, &universal, &local) || !SystemTimeToFileTime(&local, &localTime))
        return std::nullopt;
    return static_cast<int>((ToTicks(localTime) - ticks) / ticksPerSecond);
}

void ReadTimeZone()
{
    // The system is queried each time.
}

} // namespace VyrPlatform
