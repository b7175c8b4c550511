// Date-times from text and to text.
#include <VyrLibraryUtils/DateTimePattern.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/text/Locale.h>
#include <VyrPlatform/time/Clock.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace VyrLibraryUtils {

using DateTimePattern::Reader;
using DateTimePattern::Reading;

namespace {

CString ShortDatePattern()
{
    return DateTimePattern::FromFormat(VyrPlatform::Locale::GetDateTexts().shortDatePattern);
}

CString TimePattern()
{
    return DateTimePattern::FromFormat(VyrPlatform::Locale::GetDateTexts().timePattern);
}

struct Form
{
    CString pattern;
    Reading reading;
};

bool Take(Reader& reader, const Form& form)
{
    return reader.Take(form.pattern, form.reading);
}

std::u16string_view WithoutBlanksAround(std::u16string_view text)
{
    const std::size_t first = std::min(text.find_first_not_of(u" \t"), text.size());
    return text.substr(first, text.find_last_not_of(u" \t") + 1 - first);
}

COleDateTime Parse(std::u16string_view text)
{
    const std::array<Form, 4> dates{{{u"%Y/%m/%d", Reading::Exact},
                                     {u"%Y-%m-%d", Reading::Exact},
                                     {u"%Y-%b-%d", Reading::Exact},
                                     {ShortDatePattern(), Reading::Lenient}}};
    const std::array<Form, 3> times{
        {{u"%H:%M:%S", Reading::Exact}, {u"%H:%M", Reading::Exact}, {TimePattern(), Reading::Lenient}}};
    for (const Form& date : dates) {
        Reader reader(WithoutBlanksAround(text));
        if (!Take(reader, date))
            continue;
        if (reader.IsAtEnd())
            return reader.Value();
        if (!reader.TakeBlanks())
            continue;
        for (const Form& time : times)
            if (Reader attempt = reader; Take(attempt, time) && attempt.IsAtEnd())
                return attempt.Value();
    }
    return DateTimePattern::Invalid();
}

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
    return Parse(text);
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
    return DateTimePattern::Write(dateTime, ShortDatePattern());
}

CString DateTimeUtils::GetFormatedDateTime(COleDateTime dateTime)
{
    return DateTimePattern::Write(dateTime, CString::Join({ShortDatePattern(), u" ", TimePattern()}));
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
