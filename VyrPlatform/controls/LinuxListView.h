/// @file
/// For hosts on Linux: describes a list of their toolkit to CListCtrl.
///
/// A Windows host uses its system's list control and needs none of this. Use lists on one thread at a time.
#pragma once

#include <VyrPlatform/controls/CListCtrl.h>
#include <VyrPlatform/text/CString.h>

#include <memory>

namespace VyrPlatform {

/// The columns of a list in report style. The host keeps them in step with its toolkit's list.
class VYR_PLATFORM_API ListView
{
public:
    /// A list with a header and without columns.
    ListView();
    ListView(const ListView&) = delete;
    ListView& operator=(const ListView&) = delete;
    /// The handle then acts like that of a destroyed window.
    ~ListView();

    /// The argument for CListCtrl::Attach. No other list ever has the same handle.
    [[nodiscard]] HWND GetHandle() const noexcept;

    /// Inserts a column with `heading` at `index`, and at the position of the same number; columns at and after it
    /// move by one. An index past the end appends it.
    /// @return whether it was inserted: false for a negative `index`.
    bool InsertColumn(int index, const CString& heading);
    /// Removes the column at `index`.
    /// @return whether there was one.
    bool DeleteColumn(int index);
    /// Moves the column at `index` to `position`, like a user who drags its heading there.
    /// @return false when there is no such column or position.
    bool MoveColumn(int index, int position);
    /// Sets whether the list has a header. Without one it keeps its columns.
    void SetHasHeader(bool hasHeader);

private:
    struct Columns;
    friend struct ListViews;
    std::unique_ptr<Columns> m_columns;
    HWND m_handle;
};

} // namespace VyrPlatform
