// The current local time.
#include <tests/support/FixedClock.h>

#include <VyrPlatform/time/Clock.h>

#include <ctime>
#include <gtest/gtest.h>

using namespace VyrPlatform;
using VyrTests::FixedClock;

namespace {

/// The local time from the C library.
COleDateTime CLibraryNow()
{
    const std::time_t now = std::time(nullptr);
    const std::tm fields = *std::localtime(&now);
    return COleDateTime(fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday, fields.tm_hour, fields.tm_min,
                        fields.tm_sec);
}

} // namespace

TEST(ClockTest, NowIsTheLocalTime)
{
    const COleDateTime before = CLibraryNow();
    const COleDateTime now = Clock::Now();
    const COleDateTime after = CLibraryNow();
    ASSERT_EQ(now.GetStatus(), COleDateTime::valid);
    // Half a second of tolerance covers clocks that tick apart, as std::time and finer ones do.
    constexpr double halfSecond = 0.5 / 86400;
    EXPECT_GE(double(now), double(before) - halfSecond);
    EXPECT_LE(double(now), double(after) + 1.0 / 86400 + halfSecond);
}

TEST(ClockTest, NowHasWholeSeconds)
{
    const COleDateTime now = Clock::Now();
    const COleDateTime rebuilt(now.GetYear(), now.GetMonth(), now.GetDay(), now.GetHour(), now.GetMinute(),
                               now.GetSecond());
    EXPECT_EQ(double(now), double(rebuilt));
}

TEST(ClockTest, FixedMomentIsNowUntilItEnds)
{
    const COleDateTime moment(1999, 12, 31, 23, 59, 59);
    {
        const FixedClock clock(moment);
        EXPECT_EQ(double(Clock::Now()), double(moment));
    }
    EXPECT_GT(double(Clock::Now()), double(moment));
}
