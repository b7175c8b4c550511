// Reads any text as an automation date: a result is a date-time, and is read back when written.
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/time/AutomationDate.h>
#include <VyrPlatform/time/DateTimePattern.h>

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace DateTimePattern = VyrPlatform::DateTimePattern;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const CString text = VyrPlatform::Encoding::FromUtf8({reinterpret_cast<const char*>(data), size});
    const auto read = VyrPlatform::AutomationDate::Parse(text);
    if (!read)
        return 0;
    if (read->GetStatus() != COleDateTime::valid || read->GetYear() < 100)
        std::abort();
    for (const std::u16string_view pattern : {DateTimePattern::stored, std::u16string_view(u"%Y-%b-%d %H:%M:%S")}) {
        const auto again = VyrPlatform::AutomationDate::Parse(DateTimePattern::Write(*read, pattern));
        if (!again || again->m_dt != read->m_dt)
            std::abort();
    }
    return 0;
}
