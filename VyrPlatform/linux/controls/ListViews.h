// The lists of hosts, by their handles.
#pragma once

#include <VyrPlatform/controls/LinuxListView.h>

#include <vector>

namespace VyrPlatform {

struct ListView::Columns
{
    bool hasHeader = true;
    /// By index.
    std::vector<CString> headings;
    /// The index of the column at each position.
    std::vector<int> order;
};

/// Finds the columns of a handle.
struct ListViews
{
    /// A null pointer for a destroyed list and for any other handle.
    [[nodiscard]] static const ListView::Columns* Find(HWND handle);
};

} // namespace VyrPlatform
