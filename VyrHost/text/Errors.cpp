#include <VyrHost/text/Errors.h>

#include <VyrHost/text/SafeText.h>
#include <VyrPlatform/process/Process.h>

namespace VyrHost::Text {

void RefuseValue(const std::string& option, std::u16string_view value, const std::string& reason)
{
    throw UsageError(option + " '" + SafeText(value) + "': " + reason);
}

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
