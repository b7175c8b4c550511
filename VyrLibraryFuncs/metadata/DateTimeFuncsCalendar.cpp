// Calendar arithmetic, and comparisons of dates.
#include <VyrLibraryFuncs/metadata/DateTimeFuncs.h>

#include <VyrLibraryFuncs/textfile/LogFuncs.h>
#include <VyrPlatform/text/Encoding.h>

#include <boost/date_time/gregorian/gregorian_types.hpp>

#include <cstdint>
#include <stdexcept>

namespace VyrLibraryFuncs {

namespace {

namespace calendar = boost::gregorian;

// The calendar library checks only the lowest 16 bits of a year, so a year far out of range could pass. A step of zero
// takes as long as any other, and most of the three are zero.

calendar::date AddMonths(const calendar::date& date, std::int64_t count)
{
    if (count == 0)
        return date;
    constexpr int monthsPerYear = 12;
    const calendar::date::ymd_type fields = date.year_month_day();
    const std::int64_t month = fields.year * monthsPerYear + (fields.month - 1) + count;
    if (month < calendar::greg_year::min() * monthsPerYear || month >= (calendar::greg_year::max() + 1) * monthsPerYear)
        throw calendar::bad_year();
    return date + calendar::months(static_cast<int>(count));
}

calendar::date AddYears(const calendar::date& date, std::int64_t count)
{
    if (count == 0)
        return date;
    const std::int64_t year = date.year() + count;
    if (year < calendar::greg_year::min() || year > calendar::greg_year::max())
        throw calendar::bad_year();
    return date + calendar::years(static_cast<int>(count));
}

calendar::date AddDays(const calendar::date& date, int count)
{
    if (count == 0)
        return date;
    const calendar::date first(boost::date_time::min_date_time);
    const calendar::date last(boost::date_time::max_date_time);
    if (count < (first - date).days() || count > (last - date).days())
        throw calendar::bad_year();
    return date + calendar::days(count);
}

/// The calendar fields of `dateTime`; zeros, which are invalid, when it has none.
SYSTEMTIME FieldsOf(const COleDateTime& dateTime) noexcept
{
    SYSTEMTIME fields{};
    static_cast<void>(dateTime.GetAsSystemTime(fields));
    return fields;
}

/// The day, checked in this order: day, month, year, the month's length.
calendar::date DateOf(const SYSTEMTIME& fields)
{
    const calendar::greg_day day(fields.wDay);
    const calendar::greg_month month(fields.wMonth);
    const calendar::greg_year year(fields.wYear);
    return {year, month, day};
}

COleDateTime Move(const COleDateTime& dateTime, int years, int months, int days)
{
    const SYSTEMTIME fields = FieldsOf(dateTime);
    const calendar::date::ymd_type moved =
        AddDays(AddMonths(AddYears(DateOf(fields), years), months), days).year_month_day();
    return {moved.year, moved.month, moved.day, fields.wHour, fields.wMinute, fields.wSecond};
}

bool IsMatch(const COleDateTime& left, const COleDateTime& right, bool isDayCompared) noexcept
{
    if (left.GetStatus() == COleDateTime::null || right.GetStatus() == COleDateTime::null)
        return false;
    const SYSTEMTIME first = FieldsOf(left);
    const SYSTEMTIME second = FieldsOf(right);
    return first.wYear == second.wYear && first.wMonth == second.wMonth &&
           (!isDayCompared || first.wDay == second.wDay);
}

} // namespace

COleDateTime DateTimeFuncs::GetCalDateTime(COleDateTime dateTime, int years, int months, int days)
{
    if (dateTime.GetStatus() == COleDateTime::invalid || dateTime.GetStatus() == COleDateTime::null)
        return dateTime;
    try {
        return Move(dateTime, years, months, days);
    } catch (const std::out_of_range& error) {
        // Thrown by the calendar library for a wrong year, month or day.
        LogFuncs::Write(VyrPlatform::Encoding::FromUtf8(error.what()));
    } catch (...) {
    }
    return dateTime;
}

COleDateTime DateTimeFuncs::GetYesterdayDateTime(COleDateTime dateTime)
{
    return GetCalDateTime(dateTime, 0, 0, -1);
}

COleDateTime DateTimeFuncs::GetLastMonthDateTime(COleDateTime dateTime)
{
    return GetCalDateTime(dateTime, 0, -1, 0);
}

COleDateTime DateTimeFuncs::GetLastYearDateTime(COleDateTime dateTime)
{
    return GetCalDateTime(dateTime, -1, 0, 0);
}

COleDateTime DateTimeFuncs::GetBeginThisWeekDateTime(COleDateTime dateTime)
{
    return GetCalDateTime(dateTime, 0, 0, 1 - dateTime.GetDayOfWeek());
}

COleDateTime DateTimeFuncs::GetBeginLastWeekDateTime(COleDateTime dateTime)
{
    return GetCalDateTime(dateTime, 0, 0, -6 - dateTime.GetDayOfWeek());
}

COleDateTime DateTimeFuncs::GetEndWeekDateTime(COleDateTime dateTime)
{
    return GetCalDateTime(dateTime, 0, 0, 6);
}

int DateTimeFuncs::IsMatchDateMonth(COleDateTime left, COleDateTime right)
{
    return IsMatch(left, right, false);
}

int DateTimeFuncs::IsMatchDate(COleDateTime left, COleDateTime right)
{
    return IsMatch(left, right, true);
}

} // namespace VyrLibraryFuncs
