// For tests: a clock that stands still.
#pragma once

#include <VyrPlatform/time/Clock.h>

namespace VyrTests {

/// Sets the current local time to `moment` as long as it lives.
class FixedClock
{
public:
    explicit FixedClock(const COleDateTime& moment) { VyrPlatform::Clock::SetNow(moment); }
    FixedClock(const FixedClock&) = delete;
    FixedClock& operator=(const FixedClock&) = delete;
    ~FixedClock() { VyrPlatform::Clock::SetNow({}); }
};

} // namespace VyrTests
