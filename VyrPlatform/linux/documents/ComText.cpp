#include <VyrPlatform/documents/ComText.h>

#include <string_view>

namespace VyrPlatform {

_bstr_t ToBstr(const CString& text)
{
    return text.GetString();
}

CString FromBstr(BSTR text)
{
    return text ? std::u16string_view(text, SysStringLen(text)) : std::u16string_view();
}

} // namespace VyrPlatform
