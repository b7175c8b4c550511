/// @file
/// Descriptions of lists that are known by their handles alone, for hosts that cannot hold C++ objects.
///
/// On Linux each is a ListView (LinuxListView.h). Windows has list controls of its own: there no list is made, and each
/// operation fails. Use lists on one thread at a time.
#pragma once

#include <VyrPlatform/controls/CListCtrl.h>
#include <VyrPlatform/text/CString.h>

namespace VyrPlatform::ListModels {

/// A new list with a header and without columns; a null handle on Windows.
[[nodiscard]] VYR_PLATFORM_API HWND Create();
/// Destroys a list that Create made. @return whether there was one.
[[nodiscard]] VYR_PLATFORM_API bool Destroy(HWND list);

// As the operations of ListView; false also for a list that Create did not make.

[[nodiscard]] VYR_PLATFORM_API bool InsertColumn(HWND list, int index, const CString& heading);
[[nodiscard]] VYR_PLATFORM_API bool DeleteColumn(HWND list, int index);
[[nodiscard]] VYR_PLATFORM_API bool MoveColumn(HWND list, int index, int position);
[[nodiscard]] VYR_PLATFORM_API bool SetHasHeader(HWND list, bool hasHeader);

} // namespace VyrPlatform::ListModels
