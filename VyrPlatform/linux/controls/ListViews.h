// The lists that hosts have described, by their handles.
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

/// Reaches the columns behind a handle.
struct ListViews
{
    /// A null pointer for a list that is gone, and for what never was one.
    [[nodiscard]] static const ListView::Columns* Find(HWND handle);
};

} // namespace VyrPlatform
