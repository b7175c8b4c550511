// Converts calendar fields to a count of days and back.
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/time/COleDateTime.h>
#include <VyrPlatform/time/Epochs.h>

#include <chrono>
#include <cmath>

namespace {

using namespace std::chrono;
using VyrPlatform::secondsPerDay;

constexpr sys_days epoch = December / 30 / 1899;
constexpr sys_days firstDay = January / 1 / 100;
constexpr sys_days lastDay = December / 31 / 9999;

/// A date-time as a whole day and the seconds after its midnight.
struct Moment
{
    sys_days day;
    int second;
};

bool IsInRange(sys_days day) noexcept
{
    return day >= firstDay && day <= lastDay;
}

/// Converts `days`, to the nearest second; false when it is out of range.
bool ToMoment(double days, Moment& moment) noexcept
{
    // Also refuses NaN.
    if (!(days > -700000.0 && days < 3000000.0))
        return false;
    const double wholeDays = std::trunc(days);
    moment.day = epoch + std::chrono::days(static_cast<int>(wholeDays));
    moment.second = static_cast<int>(std::lround(std::fabs(days - wholeDays) * secondsPerDay));
    if (moment.second == secondsPerDay) {
        moment.day += std::chrono::days(1);
        moment.second = 0;
    }
    return IsInRange(moment.day);
}

double ToDays(const Moment& moment) noexcept
{
    const double wholeDays = static_cast<double>((moment.day - epoch).count());
    const double fraction = static_cast<double>(moment.second) / secondsPerDay;
    return wholeDays < 0 ? wholeDays - fraction : wholeDays + fraction;
}

bool IsBetween(int value, int least, int most) noexcept
{
    return value >= least && value <= most;
}

} // namespace

COleDateTime::COleDateTime(double days) noexcept : m_dt(days)
{
    Moment moment;
    if (!ToMoment(days, moment))
        m_status = invalid;
}

COleDateTime::COleDateTime(int year, int month, int day, int hour, int minute, int second) noexcept : m_status(invalid)
{
    if (!IsBetween(year, 100, 9999) || !IsBetween(month, 1, 12) || !IsBetween(day, 1, 31) || !IsBetween(hour, 0, 23) ||
        !IsBetween(minute, 0, 59) || !IsBetween(second, 0, 59))
        return;
    const year_month_day date(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                              std::chrono::day(static_cast<unsigned>(day)));
    if (!date.ok())
        return;
    m_dt = ToDays({date, (hour * 60 + minute) * 60 + second});
    m_status = valid;
}

COleDateTime::COleDateTime(const SYSTEMTIME& fields) noexcept
    : COleDateTime(fields.wYear, fields.wMonth, fields.wDay, fields.wHour, fields.wMinute, fields.wSecond)
{}

bool COleDateTime::GetAsSystemTime(SYSTEMTIME& fields) const noexcept
{
    Moment moment;
    if (m_status != valid || !ToMoment(m_dt, moment))
        return false;
    const year_month_day date(moment.day);
    fields.wYear = static_cast<WORD>(static_cast<int>(date.year()));
    fields.wMonth = static_cast<WORD>(static_cast<unsigned>(date.month()));
    fields.wDay = static_cast<WORD>(static_cast<unsigned>(date.day()));
    fields.wDayOfWeek = static_cast<WORD>(weekday(moment.day).c_encoding());
    fields.wHour = static_cast<WORD>(moment.second / 3600);
    fields.wMinute = static_cast<WORD>(moment.second / 60 % 60);
    fields.wSecond = static_cast<WORD>(moment.second % 60);
    fields.wMilliseconds = 0;
    return true;
}

namespace {

int Field(const COleDateTime& dateTime, WORD SYSTEMTIME::*field) noexcept
{
    SYSTEMTIME fields;
    return dateTime.GetAsSystemTime(fields) ? fields.*field : -1;
}

} // namespace

int COleDateTime::GetYear() const noexcept
{
    return Field(*this, &SYSTEMTIME::wYear);
}

int COleDateTime::GetMonth() const noexcept
{
    return Field(*this, &SYSTEMTIME::wMonth);
}

int COleDateTime::GetDay() const noexcept
{
    return Field(*this, &SYSTEMTIME::wDay);
}

int COleDateTime::GetHour() const noexcept
{
    return Field(*this, &SYSTEMTIME::wHour);
}

int COleDateTime::GetMinute() const noexcept
{
    return Field(*this, &SYSTEMTIME::wMinute);
}

int COleDateTime::GetSecond() const noexcept
{
    return Field(*this, &SYSTEMTIME::wSecond);
}

int COleDateTime::GetDayOfWeek() const noexcept
{
    const int sundayIsZero = Field(*this, &SYSTEMTIME::wDayOfWeek);
    return sundayIsZero < 0 ? -1 : sundayIsZero + 1;
}
