// Staggered date-times, and shifts by hours.
#include <VyrLibraryFuncs/metadata/DateTimeFuncs.h>

#include <VyrLibraryFuncs/metadata/LocalFileTime.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/time/AutomationDate.h>

#include <boost/date_time/posix_time/posix_time_types.hpp>

#include <stdexcept>

using VyrLibraryUtils::DateTimeUtils;

namespace VyrLibraryFuncs {

namespace {

namespace calendar = boost::gregorian;
namespace clock_time = boost::posix_time;

/// Sums and products wrap as 32-bit numbers do.
int Add(int left, int right) noexcept
{
    return static_cast<int>(static_cast<unsigned>(left) + static_cast<unsigned>(right));
}

int Multiply(int left, int right) noexcept
{
    return static_cast<int>(static_cast<unsigned>(left) * static_cast<unsigned>(right));
}

int Multiplier(int index, const DateTimeFuncs::STAGGERITEM& item) noexcept
{
    switch (item.numberingMode) {
    case 0:
        return Add(index, item.startNumber);
    case 1:
        return Add(item.startNumber, 1);
    default:
        return index;
    }
}

/// Throws when the year is not in the calendar.
clock_time::ptime ToTime(const COleDateTime& dateTime)
{
    SYSTEMTIME fields;
    if (!dateTime.GetAsSystemTime(fields))
        throw std::invalid_argument("no date-time");
    return {calendar::date(fields.wYear, fields.wMonth, fields.wDay),
            clock_time::time_duration(fields.wHour, fields.wMinute, fields.wSecond)};
}

/// The calendar library's own format, "2024-Jan-05 10:30:00" (its writer would add a dynamic initialiser). Throws when
/// the time has left the calendar, whose own check reads only the lowest 16 bits of the year.
CString ToText(const clock_time::ptime& time)
{
    if (time < clock_time::ptime(boost::date_time::min_date_time) ||
        time > clock_time::ptime(boost::date_time::max_date_time))
        throw calendar::bad_year();
    const calendar::date::ymd_type date = time.date().year_month_day();
    const clock_time::time_duration timeOfDay = time.time_of_day();
    CString text;
    text.Format(u"%04d-%s-%02d %02d:%02d:%02d", int{date.year},
                VyrPlatform::Encoding::FromUtf8(date.month.as_short_string()), int{date.day}, timeOfDay.hours(),
                timeOfDay.minutes(), timeOfDay.seconds());
    return text;
}

COleDateTime Stagger(const COleDateTime& base, int multiplier, const DateTimeFuncs::STAGGERITEM& item)
{
    constexpr unsigned usersLocale = 1024;
    const auto amount = [multiplier](int step) {
        return Multiply(multiplier, step);
    };
    const clock_time::time_duration shift = clock_time::seconds(amount(item.seconds)) +
                                            clock_time::minutes(amount(item.minutes)) +
                                            clock_time::hours(amount(item.hours));
    clock_time::ptime time = ToTime(base);
    int sign = 1;
    if (item.direction == 0) {
        time += shift;
    } else if (item.direction == 1) {
        time -= shift;
        sign = -1;
    }
    return DateTimeFuncs::GetCalDateTime(DateTimeUtils::GetParseDateTime(ToText(time), 1, 0, usersLocale),
                                         Multiply(sign, amount(item.years)), Multiply(sign, amount(item.months)),
                                         Multiply(sign, amount(item.days)));
}

} // namespace

FILETIME DateTimeFuncs::GetStaggerFileDateTime(int index, int isEnabled, COleDateTime base, STAGGERITEM item)
{
    if (!isEnabled)
        return {};
    if (item.useStartDateTime)
        base = DateTimeUtils::CombineDateTime(item.startDate, item.startTime);
    if (base.GetStatus() != COleDateTime::valid || !(base.m_dt > 0.0))
        return {};
    try {
        return ToFileTime(Stagger(base, Multiplier(index, item), item));
    } catch (...) {
        return {};
    }
}

COleDateTime DateTimeFuncs::GetTimeDifferenceDateTime(COleDateTime dateTime, int hours)
{
    if (dateTime.GetStatus() != COleDateTime::valid || !(dateTime.m_dt > 0.0))
        return {};
    try {
        const CString text = ToText(ToTime(dateTime) + clock_time::hours(hours));
        return VyrPlatform::AutomationDate::Parse(text).value_or(COleDateTime());
    } catch (...) {
        return {};
    }
}

} // namespace VyrLibraryFuncs
