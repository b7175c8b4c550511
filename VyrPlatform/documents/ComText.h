/// @file
/// CString and COM's texts.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/documents/ComPointer.h>
#include <VyrPlatform/text/CString.h>

namespace VyrPlatform {

/// @throws _com_error  E_OUTOFMEMORY.
[[nodiscard]] VYR_PLATFORM_API _bstr_t ToBstr(const CString& text);
[[nodiscard]] VYR_PLATFORM_API CString FromBstr(BSTR text);

} // namespace VyrPlatform
