/// @file
/// The list control of the platform class library, for lists in report style: rows with columns below a header.
///
/// Neither class owns a window: both query a window of the host. On Linux the host describes its list to the library
/// (LinuxListView.h) and gets a handle in place of a window. A destroyed window gives the same results as an empty
/// list.
#pragma once

#include <VyrPlatform/Export.h>

#include <span>

struct HWND__; // NOLINT(bugprone-reserved-identifier): the system's own tag
using HWND = HWND__*;

/// The header of a list: the headings of its columns.
class VYR_PLATFORM_API CHeaderCtrl
{
public:
    /// The header's window; a null pointer when there is none.
    [[nodiscard]] HWND GetSafeHwnd() const noexcept { return m_window; }
    /// The number of columns of the header.
    [[nodiscard]] int GetItemCount() const;

private:
    friend class CListCtrl;

    HWND m_window = nullptr;
};

/// A list in report style. Its columns have an index, from 0 in the order in which they were inserted, and a position,
/// from 0 at the left, which the user changes by dragging.
class VYR_PLATFORM_API CListCtrl
{
public:
    /// Makes this object use `window`.
    void Attach(HWND window) noexcept { m_window = window; }

    /// The header, valid until the next call and as long as this object lives; a null pointer when the list has none.
    [[nodiscard]] CHeaderCtrl* GetHeaderCtrl();
    /// Writes the heading of the column at `index` with a NUL into `heading`, truncated where it does not fit.
    /// @param heading at least one code unit.
    /// @return whether there is such a column. Without one `heading` is empty.
    [[nodiscard]] bool GetColumn(int index, std::span<char16_t> heading) const;
    /// Writes the index of the column at each position into `order`.
    /// @return false when the size of `order` is not the number of columns.
    [[nodiscard]] bool GetColumnOrderArray(std::span<int> order) const;

private:
    HWND m_window = nullptr;
    CHeaderCtrl m_header;
};
