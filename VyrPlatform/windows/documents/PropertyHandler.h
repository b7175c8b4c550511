// Property handlers of the system, in process.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <windows.h>

#include <objidl.h>
#include <propidl.h>

namespace VyrPlatform {

/// What an opening call gave: it may have given something else than what was asked for (Wine's StgOpenStorageEx gives
/// the storage object itself), so that it is asked once more.
[[nodiscard]] HRESULT AskForSets(IUnknown* object, IPropertySetStorage*& storage) noexcept;

/// Has the handler with this class id load the document at `path`.
[[nodiscard]] HRESULT LoadByHandler(const CString& path, const GUID& handler, DWORD mode,
                                    IPropertySetStorage*& storage) noexcept;

} // namespace VyrPlatform
