// The local time from the system clock and the time zone of the environment.
#include <VyrPlatform/common/time/SystemClock.h>

#include <algorithm>
#include <ctime>

namespace VyrPlatform::Clock {

COleDateTime SystemNow()
{
    const std::time_t now = std::time(nullptr);
    std::tm fields{};
    if (!::localtime_r(&now, &fields))
        return COleDateTime(0, 0, 0, 0, 0, 0);
    // A time zone that counts leap seconds has a second 60.
    return COleDateTime(fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday, fields.tm_hour, fields.tm_min,
                        std::min(fields.tm_sec, 59));
}

} // namespace VyrPlatform::Clock
