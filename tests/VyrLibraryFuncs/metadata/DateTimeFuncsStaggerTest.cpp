// Staggered date-times, and shifts by hours.
#include <VyrLibraryFuncs/metadata/DateTimeFuncs.h>

#include <tests/support/DebugCapture.h>
#include <tests/support/Describe.h>
#include <tests/support/FileMoments.h>
#include <tests/support/TimeZone.h>
#include <tests/support/UserLocale.h>

#include <VyrPlatform/files/FileTimes.h>

#include <gtest/gtest.h>

#include <limits>
#include <random>

using VyrLibraryFuncs::DateTimeFuncs;
using VyrTests::Describe;

namespace {

constexpr int most = std::numeric_limits<int>::max();
constexpr int least = std::numeric_limits<int>::min();

const COleDateTime start(2024, 1, 5, 10, 30, 0);

COleDateTime OfStatus(COleDateTime::DateTimeStatus status)
{
    COleDateTime dateTime = start;
    dateTime.SetStatus(status);
    return dateTime;
}

VyrPlatform::FileTicks Ticks(const FILETIME& time)
{
    return static_cast<VyrPlatform::FileTicks>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime);
}

/// The date-time of a file with that time; "none" for the zero file time.
std::string Staggered(int index, const COleDateTime& base, const DateTimeFuncs::STAGGERITEM& item)
{
    const VyrPlatform::FileTicks ticks = Ticks(DateTimeFuncs::GetStaggerFileDateTime(index, 1, base, item));
    return ticks == 0 ? "none" : Describe(VyrPlatform::FileTimes::ToLocalForWriting(ticks));
}

std::string MovedByHours(const COleDateTime& dateTime, int hours)
{
    return Describe(DateTimeFuncs::GetTimeDifferenceDateTime(dateTime, hours));
}

} // namespace

TEST(Stagger, IsTheFileTimeOfTheBaseWithoutSteps)
{
    const FILETIME time = DateTimeFuncs::GetStaggerFileDateTime(3, 1, start, {});
    EXPECT_EQ(Ticks(time), VyrTests::ToFileTicks(start));
}

TEST(Stagger, AddsAMultipleOfEveryStep)
{
    DateTimeFuncs::STAGGERITEM item;
    item.years = 1;
    item.months = 2;
    item.days = 3;
    item.hours = 4;
    item.minutes = 5;
    item.seconds = 6;
    EXPECT_EQ(Staggered(0, start, item), "2024-01-05 10:30:00");
    EXPECT_EQ(Staggered(1, start, item), "2025-03-08 14:35:06");
    EXPECT_EQ(Staggered(2, start, item), "2026-05-11 18:40:12");
    // First the clock: 2 February 00:05:15, then the calendar.
    EXPECT_EQ(Staggered(6, COleDateTime(2024, 1, 31, 23, 0, 0), item), "2031-02-19 23:30:36");
}

TEST(Stagger, SubtractsUnderDirection1)
{
    DateTimeFuncs::STAGGERITEM item;
    item.direction = 1;
    item.years = 1;
    item.months = 2;
    item.days = 3;
    item.hours = 4;
    item.minutes = 5;
    item.seconds = 6;
    EXPECT_EQ(Staggered(1, start, item), "2022-11-02 06:24:54");
    EXPECT_EQ(Staggered(-1, start, item), "2025-03-08 14:35:06");
}

TEST(Stagger, IgnoresTheClockUnderAnyOtherDirection)
{
    DateTimeFuncs::STAGGERITEM item;
    item.days = 1;
    item.hours = 5;
    item.minutes = 6;
    item.seconds = 7;
    for (const int direction : {2, -1, 7}) {
        item.direction = direction;
        for (int index = 0; index < 4; ++index)
            EXPECT_EQ(Staggered(index, start, item), "2024-01-0" + std::to_string(5 + index) + " 10:30:00");
    }
}

TEST(Stagger, MultiplierFollowsTheNumberingMode)
{
    DateTimeFuncs::STAGGERITEM item;
    item.minutes = 1;
    item.startNumber = 10;
    EXPECT_EQ(Staggered(2, start, item), "2024-01-05 10:42:00");
    item.numberingMode = 1;
    EXPECT_EQ(Staggered(0, start, item), "2024-01-05 10:41:00");
    EXPECT_EQ(Staggered(7, start, item), "2024-01-05 10:41:00");
    item.startNumber = 0;
    EXPECT_EQ(Staggered(7, start, item), "2024-01-05 10:31:00");
    for (const int mode : {2, -1}) {
        item.numberingMode = mode;
        item.startNumber = 10;
        EXPECT_EQ(Staggered(2, start, item), "2024-01-05 10:32:00");
    }
}

TEST(Stagger, OwnStartReplacesTheBase)
{
    DateTimeFuncs::STAGGERITEM item;
    item.useStartDateTime = 1;
    item.startDate = COleDateTime(2020, 2, 29, 1, 2, 3);
    item.startTime = COleDateTime(1999, 9, 9, 4, 5, 6);
    EXPECT_EQ(Staggered(0, start, item), "2020-02-29 04:05:06");
    EXPECT_EQ(Staggered(0, OfStatus(COleDateTime::invalid), item), "2020-02-29 04:05:06");
    item.startTime.SetStatus(COleDateTime::null);
    EXPECT_EQ(Staggered(0, start, item), "none");
    item.useStartDateTime = 0;
    EXPECT_EQ(Staggered(0, start, item), "2024-01-05 10:30:00");
}

TEST(Stagger, GivesZeroWithoutABase)
{
    EXPECT_EQ(Ticks(DateTimeFuncs::GetStaggerFileDateTime(0, 0, start, {})), 0);
    for (const COleDateTime& base :
         {OfStatus(COleDateTime::invalid), OfStatus(COleDateTime::null), COleDateTime(),
          COleDateTime(1899, 12, 29, 23, 59, 59), COleDateTime(1601, 1, 2, 0, 0, 0), COleDateTime(100, 1, 1, 0, 0, 0)})
        EXPECT_EQ(Staggered(0, base, {}), "none") << Describe(base);
    EXPECT_EQ(Staggered(0, COleDateTime(1899, 12, 30, 0, 0, 1), {}), "1899-12-30 00:00:01");
}

TEST(Stagger, GivesZeroBefore1601)
{
    DateTimeFuncs::STAGGERITEM item;
    item.direction = 1;
    item.years = 423;
    EXPECT_EQ(Staggered(1, COleDateTime(2024, 1, 5, 10, 30, 0), item), "1601-01-05 10:30:00");
    EXPECT_EQ(Staggered(1, COleDateTime(2023, 12, 5, 10, 30, 0), item), "none");
}

TEST(Stagger, CalendarStepOutOfRangeKeepsTheDateAndIsLogged)
{
    DateTimeFuncs::STAGGERITEM item;
    item.years = 8000;
    item.hours = 1;
    const VyrTests::DebugCapture capture;
    EXPECT_EQ(Staggered(1, start, item), "2024-01-05 11:30:00");
    ASSERT_EQ(capture.Texts().size(), 1U);
    EXPECT_NE(capture.Texts()[0].View().find(u"Year is out of valid range: 1400..9999"), std::u16string_view::npos);
}

TEST(Stagger, ClockThatLeavesTheCalendarGivesZero)
{
    for (const int direction : {0, 1}) {
        DateTimeFuncs::STAGGERITEM item;
        item.direction = direction;
        for (const int amount : {most, least, 574'488'576, -574'488'576}) {
            item.hours = amount;
            EXPECT_EQ(Staggered(1, start, item), "none") << amount;
        }
        item.minutes = most;
        item.seconds = most;
        item.hours = most;
        EXPECT_EQ(Staggered(1, start, item), "none");
    }
}

TEST(Stagger, SumsAndProductsWrap)
{
    DateTimeFuncs::STAGGERITEM item;
    item.seconds = 3;
    item.startNumber = 1;
    // -2^31 * 3 is -2^31 in 32 bits: 68 years back.
    EXPECT_EQ(Staggered(most, start, item), "1955-12-18 07:15:52");
    item.numberingMode = 1;
    item.startNumber = most;
    EXPECT_EQ(Staggered(0, start, item), "1955-12-18 07:15:52");
    item = {};
    item.numberingMode = 2;
    item.direction = 1;
    item.days = 65'536;
    // 65536 * 65536 is 0.
    EXPECT_EQ(Staggered(65'536, start, item), "2024-01-05 10:30:00");
    item.days = least;
    const VyrTests::DebugCapture capture;
    EXPECT_EQ(Staggered(1, start, item), "2024-01-05 10:30:00");
    EXPECT_EQ(capture.Texts().size(), 1U);
}

TEST(Stagger, IsTheSameUnderEveryLanguage)
{
    DateTimeFuncs::STAGGERITEM item;
    item.months = 1;
    item.seconds = 1;
    for (const char16_t* const name : {u"C", u"de_DE", u"tr_TR", u"ja_JP", u"ar_EG"}) {
        const VyrTests::UserLocale locale(name);
        for (int index = 0; index < 12; ++index) {
            char expected[80];
            std::snprintf(expected, sizeof expected, "2024-%02d-05 10:30:%02d", index + 1, index);
            EXPECT_EQ(Staggered(index, start, item), expected) << index;
        }
    }
}

TEST(Stagger, ClockStepsAgreeWithCountingSeconds)
{
    const VyrTests::TimeZone zone("UTC");
    if (!zone.IsSet())
        GTEST_SKIP() << zone.WhyNot();
    std::mt19937 random(7);
    const auto pick = [&random](int bound) {
        return std::uniform_int_distribution(-bound, bound)(random);
    };
    for (int round = 0; round < 2000; ++round) {
        DateTimeFuncs::STAGGERITEM item;
        item.direction = round % 2;
        item.hours = pick(30'000);
        item.minutes = pick(100'000);
        item.seconds = pick(1'000'000);
        const int index = pick(20);
        const std::int64_t shift = (item.hours * std::int64_t{60} + item.minutes) * 60 + item.seconds;
        const std::int64_t expected = VyrTests::ToFileTicks(start) + (round % 2 ? -1 : 1) * index * shift * 10'000'000;
        ASSERT_EQ(Ticks(DateTimeFuncs::GetStaggerFileDateTime(index, 1, start, item)), expected) << round;
    }
}

TEST(TimeDifference, MovesByHours)
{
    EXPECT_EQ(MovedByHours(start, 0), "2024-01-05 10:30:00");
    EXPECT_EQ(MovedByHours(start, 14), "2024-01-06 00:30:00");
    EXPECT_EQ(MovedByHours(start, -11), "2024-01-04 23:30:00");
    EXPECT_EQ(MovedByHours(COleDateTime(2024, 2, 28, 23, 59, 59), 24), "2024-02-29 23:59:59");
    EXPECT_EQ(MovedByHours(COleDateTime(1899, 12, 30, 0, 0, 1), -1), "1899-12-29 23:00:01");
    EXPECT_EQ(MovedByHours(COleDateTime(9999, 12, 31, 22, 0, 0), 1), "9999-12-31 23:00:00");
    EXPECT_EQ(MovedByHours(COleDateTime(1900, 1, 1, 0, 0, 0), -4'382'904), "1400-01-01 00:00:00");
}

TEST(TimeDifference, IsTheZeroDateTimeWhereThereIsNone)
{
    constexpr const char* zero = "1899-12-30 00:00:00";
    for (const COleDateTime& dateTime : {OfStatus(COleDateTime::invalid), OfStatus(COleDateTime::null), COleDateTime(),
                                         COleDateTime(1899, 12, 29, 23, 0, 0)})
        EXPECT_EQ(MovedByHours(dateTime, 1), zero);
    EXPECT_EQ(MovedByHours(COleDateTime(9999, 12, 31, 23, 0, 0), 1), zero);
    EXPECT_EQ(MovedByHours(COleDateTime(1900, 1, 1, 0, 0, 0), -4'382'905), zero);
    for (const int hours : {most, least, 574'488'576, -574'488'576})
        EXPECT_EQ(MovedByHours(start, hours), zero) << hours;
}

TEST(TimeDifference, IsReadBackInEveryMonth)
{
    for (int month = 1; month <= 12; ++month) {
        const COleDateTime date(2024, month, 7, 8, 9, 10);
        EXPECT_EQ(MovedByHours(date, 1), Describe(COleDateTime(2024, month, 7, 9, 9, 10)));
    }
}
