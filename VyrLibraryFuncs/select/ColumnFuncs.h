/// @file
/// The columns of a list, found by their headings.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/controls/CListCtrl.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryFuncs {

/// Finds columns of a list in report style by their headings, whichever columns the user shows and wherever they were
/// dragged. Upper and lower case are one. A heading counts with its first 259 code units.
///
/// A search drains one message of the calling thread before each column; a stop ends it without a match. Columns that a
/// message adds or removes meanwhile are seen. A list without a header has no columns here.
///
/// Example: of the columns "Name", "Size" and "Type", the user has dragged "Type" to the left end. "type" then has the
/// index 2 and the order 0.
class VYR_FUNCS_API ColumnFuncs
{
public:
    ColumnFuncs();
    ~ColumnFuncs();
    ColumnFuncs& operator=(const ColumnFuncs&);

    /// Whether a column has the heading `name` (1 or 0).
    static int IsVisibleColumn(CListCtrl& listControl, CString name);
    /// The index, from 0, of the first column in the order of their creation that has the heading `name`; -1 for none.
    static int GetColumnHeaderItem(CListCtrl& listControl, CString name);
    /// The position, from 0 at the left, of the leftmost column that has the heading `name`; -1 for none, and when the
    /// memory for the positions is lacking. The positions are those at the beginning of the search.
    static int GetColumnItemOrder(CListCtrl& listControl, CString name);
    /// The heading of the column at `index`; empty where there is none. It drains nothing.
    static CString GetColumnItemText(CListCtrl& listControl, int index);
};

} // namespace VyrLibraryFuncs
