// Automation dates by the system's own parser.
#include <VyrPlatform/time/AutomationDate.h>

#include <VyrPlatform/text/WindowsCString.h>

#include <windows.h>

#include <oleauto.h>

namespace VyrPlatform::AutomationDate {

std::optional<COleDateTime> Parse(const CString& text)
{
    DATE days = 0;
    // Some headers declare the text, which is only read, as one that may be changed.
    if (FAILED(VarDateFromStr(const_cast<OLECHAR*>(ToWide(text)), LOCALE_USER_DEFAULT, 0, &days)))
        return std::nullopt;
    return COleDateTime(days);
}

} // namespace VyrPlatform::AutomationDate
