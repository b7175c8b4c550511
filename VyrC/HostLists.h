/// @file
/// Lists of a host on Linux.
#pragma once

#include <VyrPlatform/controls/CListCtrl.h>
#include <VyrPlatform/text/CString.h>

namespace VyrC {

/// Describes lists of a host on Linux, for the operations that take a list control. On Windows a host gives the handle
/// of its own window: there every operation fails.
class HostLists
{
public:
    /// A new list with a header and without columns. Destroy it with Destroy.
    /// @return its handle; 0 on Windows.
    static HWND Create();
    /// @return whether there was such a list.
    static int Destroy(HWND list);
    /// Inserts a column at `index`, and at the position of the same number. An index past the end appends it.
    /// @return whether it was inserted: 0 for a negative `index`.
    static int InsertColumn(HWND list, int index, CString heading);
    /// @return whether there was such a column.
    static int DeleteColumn(HWND list, int index);
    /// Moves the column at `index` to `position`, like a user who drags its heading there.
    /// @return whether there is such a column and such a position.
    static int MoveColumn(HWND list, int index, int position);
    /// Sets whether the list has a header: 1 or 0. Without one it keeps its columns.
    /// @return whether there is such a list.
    static int SetHasHeader(HWND list, int hasHeader);
};

} // namespace VyrC
