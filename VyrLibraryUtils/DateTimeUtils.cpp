#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/time/DateTimePattern.h>

namespace VyrLibraryUtils {

namespace DateTimePattern = VyrPlatform::DateTimePattern;
namespace FileTimes = VyrPlatform::FileTimes;

namespace {

COleDateTime Local(const std::optional<VyrPlatform::FileTicks>& ticks)
{
    return ticks ? FileTimes::ToLocal(*ticks) : DateTimePattern::Invalid();
}

COleDateTime WithTime(const COleDateTime& date, int hour, int minute, int second) noexcept
{
    return {date.GetYear(), date.GetMonth(), date.GetDay(), hour, minute, second};
}

bool IsValid(const COleDateTime& dateTime) noexcept
{
    return dateTime.GetStatus() == COleDateTime::valid;
}

int Part(const COleDateTime& dateTime, int part) noexcept
{
    switch (part) {
    case 0:
        return dateTime.GetYear();
    case 1:
        return dateTime.GetMonth();
    case 2:
        return dateTime.GetDay();
    case 3:
        return dateTime.GetHour();
    case 4:
        return dateTime.GetMinute();
    case 5:
        return dateTime.GetSecond();
    default:
        return -1;
    }
}

/// Whether `mode` takes `part` from the file: 1 the time of day, 2 the date, 3 both.
bool IsFromFile(int mode, int part) noexcept
{
    const bool isTimeOfDay = part >= 3;
    return mode == 3 || mode == (isTimeOfDay ? 1 : 2);
}

} // namespace

DateTimeUtils::DateTimeUtils() = default;
DateTimeUtils::~DateTimeUtils() = default;
DateTimeUtils& DateTimeUtils::operator=(const DateTimeUtils&) = default;

COleDateTime DateTimeUtils::GetDateModified(CString path)
{
    return Local(FileTimes::GetModified(path));
}

COleDateTime DateTimeUtils::GetDateCreated(CString path)
{
    return Local(FileTimes::GetCreated(path));
}

COleDateTime DateTimeUtils::GetDateAccessed(CString path)
{
    return Local(FileTimes::GetAccessed(path));
}

COleDateTime DateTimeUtils::GetBeginDateTime(COleDateTime dateTime)
{
    return IsValid(dateTime) ? WithTime(dateTime, 0, 0, 0) : dateTime;
}

COleDateTime DateTimeUtils::GetEndDateTime(COleDateTime dateTime)
{
    return IsValid(dateTime) ? WithTime(dateTime, 23, 59, 59) : dateTime;
}

COleDateTime DateTimeUtils::CombineDateTime(COleDateTime date, COleDateTime time)
{
    // The parts of an invalid date-time are -1, which gives an invalid result.
    return WithTime(date, time.GetHour(), time.GetMinute(), time.GetSecond());
}

int DateTimeUtils::GetDateTime(CString path, COleDateTime dateTime, int mode, int part)
{
    if (!IsFromFile(mode, part))
        return Part(dateTime, part);
    const std::optional<VyrPlatform::FileTicks> modified = FileTimes::GetModified(path);
    return modified ? Part(FileTimes::ToLocalForWriting(*modified), part) : -1;
}

} // namespace VyrLibraryUtils
