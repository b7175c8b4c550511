#include <VyrPlatform/common/time/SystemClock.h>
#include <VyrPlatform/time/Clock.h>

namespace VyrPlatform::Clock {

namespace {

constinit std::optional<COleDateTime> fixedMoment;

} // namespace

COleDateTime Now()
{
    return fixedMoment ? *fixedMoment : SystemNow();
}

void SetNow(std::optional<COleDateTime> moment)
{
    fixedMoment = moment;
}

} // namespace VyrPlatform::Clock
