#include <VyrPlatform/common/time/SystemClock.h>

#include <windows.h>

namespace VyrPlatform::Clock {

COleDateTime SystemNow()
{
    SYSTEMTIME fields;
    ::GetLocalTime(&fields);
    return COleDateTime(fields);
}

} // namespace VyrPlatform::Clock
