// A second calendar for the tests: it steps from day to day by the lengths of the months, with no formula for day
// counts.
#pragma once

#include <gtest/gtest.h>

struct CalendarMoment
{
    int year;
    int month;
    int day;
    int weekday; ///< 0 = Sunday
    int hour;
    int minute;
    int second;
    double days; ///< automation days of the moment
};

/// 1 January 100, a Friday.
inline CalendarMoment FirstCalendarDay()
{
    return {100, 1, 1, 5, 0, 0, 0, -657434.0};
}

inline int MonthLength(int year, int month)
{
    static const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = year % 400 == 0 || (year % 4 == 0 && year % 100 != 0);
    return month == 2 && leap ? 29 : lengths[month - 1];
}

inline void StepOneDay(CalendarMoment& moment)
{
    moment.weekday = (moment.weekday + 1) % 7;
    moment.days += 1.0;
    if (++moment.day <= MonthLength(moment.year, moment.month))
        return;
    moment.day = 1;
    if (++moment.month <= 12)
        return;
    moment.month = 1;
    ++moment.year;
}

/// Calls `check` with every second of 28 February to 2 March of each century year from 100 to 9900, and of 1899 and
/// 1901 on both sides of the zero day. `check` returns whether the moment is right.
template <class Check>
void WalkEndsOfFebruary(Check check)
{
    for (CalendarMoment day = FirstCalendarDay(); day.year <= 9999; StepOneDay(day)) {
        const bool year = day.year % 100 == 0 || day.year == 1899 || day.year == 1901;
        const bool date = (day.month == 2 && day.day >= 28) || (day.month == 3 && day.day <= 2);
        if (!year || !date)
            continue;
        for (int second = 0; second < 86400; ++second) {
            CalendarMoment moment = day;
            moment.hour = second / 3600;
            moment.minute = second / 60 % 60;
            moment.second = second % 60;
            moment.days = day.days < 0 ? day.days - second / 86400.0 : day.days + second / 86400.0;
            ASSERT_TRUE(check(moment)) << moment.year << '-' << moment.month << '-' << moment.day << " second "
                                       << second;
        }
    }
}
