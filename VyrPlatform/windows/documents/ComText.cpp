#include <VyrPlatform/documents/ComText.h>
#include <VyrPlatform/text/WindowsCString.h>

namespace VyrPlatform {

_bstr_t ToBstr(const CString& text)
{
    return ToWide(text);
}

CString FromBstr(BSTR text)
{
    return FromWide({text, SysStringLen(text)});
}

} // namespace VyrPlatform
