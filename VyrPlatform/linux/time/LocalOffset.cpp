// Local time by the C library, in the time zone of TZ or of the system.
#include <VyrPlatform/common/time/LocalOffset.h>

#include <ctime>

namespace VyrPlatform {

std::optional<int> GetLocalOffset(std::int64_t unixSeconds)
{
    const std::time_t time = unixSeconds;
    std::tm local;
    if (!localtime_r(&time, &local))
        return std::nullopt;
    return static_cast<int>(local.tm_gmtoff);
}

void ReadTimeZone()
{
    tzset();
}

} // namespace VyrPlatform
