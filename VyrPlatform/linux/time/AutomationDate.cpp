#include <VyrPlatform/time/AutomationDate.h>

#include <VyrPlatform/time/DateTimePattern.h>

namespace VyrPlatform::AutomationDate {

std::optional<COleDateTime> Parse(const CString& text)
{
    const COleDateTime read = DateTimePattern::ReadUsual(text);
    if (read.GetStatus() != COleDateTime::valid)
        return std::nullopt;
    return read;
}

} // namespace VyrPlatform::AutomationDate
