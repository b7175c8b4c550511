// Words for error codes.
#include <VyrHost/text/ErrorText.h>

#include <VyrPlatform/process/Process.h>

namespace VyrHost::Text {

CString ErrorText(std::uint32_t code)
{
    if (code == 0)
        return u"its folder is not where it was";
    CString text = VyrPlatform::Process::GetErrorMessage(code);
    if (text.IsEmpty())
        text.Format(u"error %u", code);
    return text;
}

} // namespace VyrHost::Text
