/// @file
/// The columns of a list, found by their headings.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/controls/CListCtrl.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryFuncs {

/// Finds columns of a list in report style by their headings, whichever columns are shown and wherever the user has
/// dragged them. Case is ignored. Only the first 259 code units of a heading are compared.
///
/// A search drains one message of the calling thread before each column; a stop ends it without a match. It sees
/// columns that a message adds or removes meanwhile. A list without a header has no columns here.
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
    /// The index, from 0, of the first column, in the order of creation, with the heading `name`; -1 for none.
    static int GetColumnHeaderItem(CListCtrl& listControl, CString name);
    /// The position, from 0 at the left, of the leftmost column with the heading `name`; -1 for none, and when there is
    /// no memory for the positions. The positions are those at the beginning of the search.
    static int GetColumnItemOrder(CListCtrl& listControl, CString name);
    /// The heading of the column at `index`; empty when there is none. It drains no message.
    static CString GetColumnItemText(CListCtrl& listControl, int index);
};

} // namespace VyrLibraryFuncs
