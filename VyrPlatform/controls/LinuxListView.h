/// @file
/// For hosts on Linux: a list of a toolkit's own, as CListCtrl sees it.
///
/// A Windows host has its system's list control and needs none of this. Lists are described and asked on one thread at
/// a time.
#pragma once

#include <VyrPlatform/controls/CListCtrl.h>
#include <VyrPlatform/text/CString.h>

#include <memory>

namespace VyrPlatform {

/// The columns of a list in report style. The host keeps them as its toolkit's list has them.
class VYR_PLATFORM_API ListView
{
public:
    /// A list with a header and without columns.
    ListView();
    ListView(const ListView&) = delete;
    ListView& operator=(const ListView&) = delete;
    /// From now on its handle is that of a window that is gone.
    ~ListView();

    /// What CListCtrl::Attach takes; no other list ever gets the same.
    [[nodiscard]] HWND GetHandle() const noexcept;

    /// Inserts a column with `heading` at `index`, and at the position of that number; columns there and behind move on
    /// by one. One past the last index, or further, appends it.
    /// @return whether it was inserted; it is not for a negative `index`.
    bool InsertColumn(int index, const CString& heading);
    /// Removes the column at `index`.
    /// @return whether there was one.
    bool DeleteColumn(int index);
    /// Puts the column at `index` to `position`, as the user does who drags its heading there.
    /// @return whether there are such a column and such a position.
    bool MoveColumn(int index, int position);
    /// Says whether the list has a header. It keeps its columns without one.
    void SetHasHeader(bool hasHeader);

private:
    struct Columns;
    friend struct ListViews;
    std::unique_ptr<Columns> m_columns;
    HWND m_handle;
};

} // namespace VyrPlatform
