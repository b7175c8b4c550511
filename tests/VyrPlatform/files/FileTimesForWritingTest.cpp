// File times for writing back: the inverse of the system's own conversion.
#include <VyrPlatform/files/FileTimes.h>

#include <tests/support/Describe.h>
#include <tests/support/FileMoments.h>
#include <tests/support/TimeZone.h>

#include <gtest/gtest.h>

#include <limits>

namespace FileTimes = VyrPlatform::FileTimes;
using VyrTests::TicksOfUnixTime;
using VyrTests::TimeZone;

namespace {

constexpr std::int64_t secondsPerDay = 86'400;

/// Writes back the noon (UTC) of each day from 1971 to 2037. An hour in which clocks are turned back has two instants;
/// it is never at noon UTC in the zones of the tests.
void ExpectEveryDayComesBack()
{
    for (std::int64_t day = 365; day < 67 * 365; ++day) {
        const VyrPlatform::FileTicks noon = TicksOfUnixTime(day * secondsPerDay + secondsPerDay / 2);
        const COleDateTime local = FileTimes::ToLocalForWriting(noon + 9'999'999);
        ASSERT_EQ(VyrTests::ToFileTicks(local), noon) << VyrTests::Describe(local);
        ASSERT_EQ(FileTimes::FromLocalForWriting(local), noon) << VyrTests::Describe(local);
    }
}

TEST(FileTimesForWriting, EveryDayIsReadBackInTheMachinesOwnZone)
{
    ExpectEveryDayComesBack();
}

TEST(FileTimesForWriting, EveryDayIsReadBackWhereClocksAreTurned)
{
    const TimeZone zone("Europe/Berlin");
    if (!zone.IsSet())
        GTEST_SKIP() << zone.WhyNot();
    ExpectEveryDayComesBack();
}

TEST(FileTimesForWriting, IsInvalidOutOfTheCalendarsRange)
{
    constexpr VyrPlatform::FileTicks last = std::numeric_limits<VyrPlatform::FileTicks>::max();
    EXPECT_EQ(VyrTests::Describe(FileTimes::ToLocalForWriting(last)), "invalid");
    EXPECT_EQ(VyrTests::Describe(FileTimes::ToLocalForWriting(std::numeric_limits<VyrPlatform::FileTicks>::min())),
              "invalid");
}

TEST(FileTimesForWriting, LocalTimeBefore1601IsNone)
{
    EXPECT_EQ(FileTimes::FromLocalForWriting(COleDateTime(1600, 12, 31, 23, 59, 59)), std::nullopt);
    EXPECT_EQ(FileTimes::FromLocalForWriting(COleDateTime(100, 1, 1, 0, 0, 0)), std::nullopt);
    const COleDateTime first(1601, 1, 3, 0, 0, 0);
    EXPECT_EQ(FileTimes::FromLocalForWriting(first), VyrTests::ToFileTicks(first));
    EXPECT_TRUE(FileTimes::FromLocalForWriting(COleDateTime(9999, 12, 31, 23, 59, 59)));
}

TEST(FileTimesForWriting, InvalidLocalTimeGivesNoFileTime)
{
    for (const auto status : {COleDateTime::invalid, COleDateTime::null}) {
        COleDateTime none(2024, 1, 5, 10, 30, 0);
        none.SetStatus(status);
        EXPECT_EQ(FileTimes::FromLocalForWriting(none), std::nullopt);
    }
    COleDateTime outside;
    outside.m_dt = 1e9;
    EXPECT_EQ(FileTimes::FromLocalForWriting(outside), std::nullopt);
}

} // namespace
