// COleDateTime against the system's own conversion between calendar fields and automation days.
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/time/COleDateTime.h>
#include <tests/VyrPlatform/time/CalendarWalk.h>

#include <gtest/gtest.h>
#include <oleauto.h>

#include <cmath>
#include <cstring>

TEST(COleDateTimeSystem, EverySecondAroundTheEndOfFebruaryAgreesWithTheSystem)
{
    WalkEndsOfFebruary([](const CalendarMoment& moment) {
        const COleDateTime built(moment.year, moment.month, moment.day, moment.hour, moment.minute, moment.second);
        SYSTEMTIME fields{};
        double days = 0;
        if (!built.GetAsSystemTime(fields) || !SystemTimeToVariantTime(&fields, &days) ||
            std::fabs(days - static_cast<double>(built)) > 1e-9)
            return false;
        SYSTEMTIME back{};
        return VariantTimeToSystemTime(built, &back) != 0 && std::memcmp(&back, &fields, sizeof back) == 0;
    });
}

TEST(COleDateTimeSystem, NegativeAndFractionalDaysReadAsTheSystemReadsThem)
{
    constexpr double roundsToSunday = 36526.999999;
    for (const double days : {-1.25, -0.25, 0.25, -0.75, -2.5, 1.000001, roundsToSunday, -657434.0, 2958465.5}) {
        SYSTEMTIME system{};
        SYSTEMTIME ours{};
        ASSERT_TRUE(VariantTimeToSystemTime(days, &system)) << days;
        ASSERT_TRUE(COleDateTime(days).GetAsSystemTime(ours)) << days;
        // Wine rounds the time up to midnight and the date with it, but keeps the day of the week.
        if (days == roundsToSunday)
            system.wDayOfWeek = 0;
        EXPECT_EQ(std::memcmp(&ours, &system, sizeof ours), 0) << days;
    }
}
