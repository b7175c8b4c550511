// Property handlers of the system, in process.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <windows.h>

#include <objidl.h>
#include <propidl.h>

namespace VyrPlatform {

/// Queries the interface of `object`, the result of an opening call: that may have returned another interface than
/// requested (Wine's StgOpenStorageEx returns the storage object itself).
[[nodiscard]] HRESULT AskForSets(IUnknown* object, IPropertySetStorage*& storage) noexcept;

/// Loads the document at `path` with the handler of this class id.
[[nodiscard]] HRESULT LoadByHandler(const CString& path, const GUID& handler, DWORD mode,
                                    IPropertySetStorage*& storage) noexcept;

} // namespace VyrPlatform
