// For tests: a clock that stands still.
#pragma once

#include <VyrPlatform/time/Clock.h>

namespace VyrTests {

/// Makes the current local time `moment` until its end of life.
class FixedClock
{
public:
    explicit FixedClock(const COleDateTime& moment) { VyrPlatform::Clock::SetNow(moment); }
    FixedClock(const FixedClock&) = delete;
    FixedClock& operator=(const FixedClock&) = delete;
    ~FixedClock() { VyrPlatform::Clock::SetNow({}); }
};

} // namespace VyrTests
