// Automation dates by the system's own parser.
#include <VyrPlatform/time/AutomationDate.h>

#include <VyrPlatform/text/WindowsCString.h>
#include <VyrPlatform/time/DateTimePattern.h>

#include <windows.h>

#include <oleauto.h>

namespace VyrPlatform::AutomationDate {

std::optional<COleDateTime> Parse(const CString& text)
{
    DATE days = 0;
    // Some headers declare the text as non-const, but it is only read.
    if (SUCCEEDED(VarDateFromStr(const_cast<OLECHAR*>(ToWide(text)), LOCALE_USER_DEFAULT, 0, &days)))
        return COleDateTime(days);
    // The system's parser may not know English month names under another language.
    const COleDateTime read = DateTimePattern::ReadUsual(text);
    if (read.GetStatus() != COleDateTime::valid)
        return std::nullopt;
    return read;
}

} // namespace VyrPlatform::AutomationDate
