// Converts date-times from text and to text.
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/time/Clock.h>
#include <VyrPlatform/time/DateTimePattern.h>

namespace VyrLibraryUtils {

namespace DateTimePattern = VyrPlatform::DateTimePattern;

namespace {

CString Now()
{
    return DateTimePattern::Write(VyrPlatform::Clock::Now(), DateTimePattern::stored);
}

} // namespace

COleDateTime DateTimeUtils::GetExifDateTime(CString text)
{
    return DateTimePattern::Read(text, u"%Y:%m:%d %H:%M:%S");
}

COleDateTime DateTimeUtils::GetInstallDateTime(CString text)
{
    return DateTimePattern::Read(text, u"%Y%m%d");
}

COleDateTime DateTimeUtils::GetParseDateTime(CString text, int /*mode*/, std::uint32_t /*flags*/,
                                             std::uint32_t /*locale*/)
{
    return DateTimePattern::ReadUsual(text);
}

CString DateTimeUtils::GetDateTimeFormat(CString format, CString /*reserved*/)
{
    return DateTimePattern::FromFormat(format);
}

CString DateTimeUtils::GetOleDateTimeFormat(COleDateTime dateTime, CString pattern)
{
    return DateTimePattern::Write(dateTime, pattern);
}

CString DateTimeUtils::GetFormatedDate(COleDateTime dateTime)
{
    return DateTimePattern::Write(dateTime, DateTimePattern::ShortDate());
}

CString DateTimeUtils::GetFormatedDateTime(COleDateTime dateTime)
{
    return DateTimePattern::Write(dateTime,
                                  CString::Join({DateTimePattern::ShortDate(), u" ", DateTimePattern::TimeOfDay()}));
}

CString DateTimeUtils::GetCurrentDateTime()
{
    return Now();
}

CString DateTimeUtils::GetCurrentDateTimeEx()
{
    return Now();
}

} // namespace VyrLibraryUtils
