// COleDateTime: the automation rules, checked against a second algorithm over the whole calendar.
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "CalendarWalk.h"

namespace {

void ExpectFields(const COleDateTime& moment, int year, int month, int day, int hour, int minute, int second)
{
    EXPECT_EQ(moment.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(moment.GetYear(), year);
    EXPECT_EQ(moment.GetMonth(), month);
    EXPECT_EQ(moment.GetDay(), day);
    EXPECT_EQ(moment.GetHour(), hour);
    EXPECT_EQ(moment.GetMinute(), minute);
    EXPECT_EQ(moment.GetSecond(), second);
}

} // namespace

TEST(COleDateTime, DefaultIsTheZeroDateTimeAndValid)
{
    const COleDateTime zero;
    EXPECT_EQ(static_cast<double>(zero), 0.0);
    ExpectFields(zero, 1899, 12, 30, 0, 0, 0);
    EXPECT_EQ(zero.GetDayOfWeek(), 7);
}

TEST(COleDateTime, NegativeDaysCountTheirTimeOfDayForward)
{
    ExpectFields(COleDateTime(-1.25), 1899, 12, 29, 6, 0, 0);
    ExpectFields(COleDateTime(-1.75), 1899, 12, 29, 18, 0, 0);
    ExpectFields(COleDateTime(-0.25), 1899, 12, 30, 6, 0, 0);
    ExpectFields(COleDateTime(0.25), 1899, 12, 30, 6, 0, 0);
    EXPECT_EQ(static_cast<double>(COleDateTime(1899, 12, 29, 6, 0, 0)), -1.25);
    EXPECT_EQ(static_cast<double>(COleDateTime(1899, 12, 28, 18, 0, 0)), -2.75);
}

TEST(COleDateTime, FieldsAreReadToTheNearestSecond)
{
    constexpr double second = 1.0 / 86400.0;
    ExpectFields(COleDateTime(2.0 + 10.4 * second), 1900, 1, 1, 0, 0, 10);
    ExpectFields(COleDateTime(2.0 + 10.6 * second), 1900, 1, 1, 0, 0, 11);
    ExpectFields(COleDateTime(3.0 - 0.4 * second), 1900, 1, 2, 0, 0, 0);
    ExpectFields(COleDateTime(-2.0 - (86400.0 - 0.4) * second), 1899, 12, 29, 0, 0, 0);
}

TEST(COleDateTime, FieldsOfAnInvalidDateTimeAreMinusOne)
{
    for (const auto status : {COleDateTime::invalid, COleDateTime::null}) {
        COleDateTime moment(2024, 1, 2, 3, 4, 5);
        moment.SetStatus(status);
        EXPECT_EQ(moment.GetYear(), -1);
        EXPECT_EQ(moment.GetMonth(), -1);
        EXPECT_EQ(moment.GetDay(), -1);
        EXPECT_EQ(moment.GetHour(), -1);
        EXPECT_EQ(moment.GetMinute(), -1);
        EXPECT_EQ(moment.GetSecond(), -1);
        EXPECT_EQ(moment.GetDayOfWeek(), -1);
        SYSTEMTIME fields{};
        fields.wYear = 7;
        EXPECT_FALSE(moment.GetAsSystemTime(fields));
        EXPECT_EQ(fields.wYear, 7);
    }
}

TEST(COleDateTime, RangeRunsFromYear100To9999)
{
    ExpectFields(COleDateTime(100, 1, 1, 0, 0, 0), 100, 1, 1, 0, 0, 0);
    EXPECT_EQ(static_cast<double>(COleDateTime(100, 1, 1, 0, 0, 0)), -657434.0);
    ExpectFields(COleDateTime(9999, 12, 31, 23, 59, 59), 9999, 12, 31, 23, 59, 59);
    EXPECT_EQ(COleDateTime(99, 12, 31, 0, 0, 0).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(COleDateTime(10000, 1, 1, 0, 0, 0).GetStatus(), COleDateTime::invalid);
    for (const double days : {-657435.0, 2958466.0, 1e300, -1e300, std::numeric_limits<double>::infinity(),
                              -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(COleDateTime(days).GetStatus(), COleDateTime::invalid) << days;
        COleDateTime forced;
        forced.m_dt = days;
        EXPECT_EQ(forced.GetYear(), -1) << days;
    }
}

TEST(COleDateTime, ImpossibleFieldsAreInvalid)
{
    const int impossible[][6] = {{2023, 2, 29, 0, 0, 0},    {1900, 2, 29, 0, 0, 0}, {2024, 0, 1, 0, 0, 0},
                                 {2024, 13, 1, 0, 0, 0},    {2024, 1, 0, 0, 0, 0},  {2024, 1, 32, 0, 0, 0},
                                 {2024, 4, 31, 0, 0, 0},    {2024, 1, 1, 24, 0, 0}, {2024, 1, 1, -1, 0, 0},
                                 {2024, 1, 1, 0, 60, 0},    {2024, 1, 1, 0, 0, 60}, {-1, -1, -1, -1, -1, -1},
                                 {2024, 65537, 1, 0, 0, 0}, {0, 1, 1, 0, 0, 0},     {2024, 1, 1, 0, -1, 0}};
    for (const auto& f : impossible)
        EXPECT_EQ(COleDateTime(f[0], f[1], f[2], f[3], f[4], f[5]).GetStatus(), COleDateTime::invalid)
            << f[0] << '-' << f[1] << '-' << f[2] << ' ' << f[3] << ':' << f[4] << ':' << f[5];
}

TEST(COleDateTime, SystemTimeFieldsAreConvertedBackWithoutTheirFraction)
{
    SYSTEMTIME fields{};
    fields.wYear = 2024;
    fields.wMonth = 2;
    fields.wDay = 29;
    fields.wHour = 23;
    fields.wMinute = 59;
    fields.wSecond = 58;
    fields.wMilliseconds = 999;
    SYSTEMTIME back{};
    ASSERT_TRUE(COleDateTime(fields).GetAsSystemTime(back));
    EXPECT_EQ(back.wSecond, 58);
    EXPECT_EQ(back.wDay, 29);
    EXPECT_EQ(back.wDayOfWeek, 4);
    EXPECT_EQ(back.wMilliseconds, 0);
}

TEST(COleDateTime, EverySecondAroundTheEndOfFebruaryAgreesWithASecondAlgorithm)
{
    WalkEndsOfFebruary([](const CalendarMoment& expected) {
        const COleDateTime built(expected.year, expected.month, expected.day, expected.hour, expected.minute,
                                 expected.second);
        if (built.GetStatus() != COleDateTime::valid || std::fabs(static_cast<double>(built) - expected.days) > 1e-9)
            return false;
        SYSTEMTIME fields;
        return built.GetAsSystemTime(fields) && fields.wYear == expected.year && fields.wMonth == expected.month &&
               fields.wDay == expected.day && fields.wHour == expected.hour && fields.wMinute == expected.minute &&
               fields.wSecond == expected.second && fields.wDayOfWeek == expected.weekday;
    });
}

TEST(COleDateTime, EveryDayOfTheCalendarFollowsTheOneBefore)
{
    int count = 0;
    for (CalendarMoment day = FirstCalendarDay(); day.year <= 9999; StepOneDay(day), ++count) {
        const COleDateTime built(day.year, day.month, day.day, 0, 0, 0);
        ASSERT_EQ(static_cast<double>(built), -657434.0 + count) << day.year << '-' << day.month << '-' << day.day;
        SYSTEMTIME fields;
        ASSERT_TRUE(built.GetAsSystemTime(fields));
        ASSERT_EQ(fields.wYear, day.year);
        ASSERT_EQ(fields.wMonth, day.month);
        ASSERT_EQ(fields.wDay, day.day);
        ASSERT_EQ(fields.wDayOfWeek, day.weekday);
    }
}
