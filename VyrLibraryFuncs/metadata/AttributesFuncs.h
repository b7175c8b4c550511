/// @file
/// The attributes of files and folders.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryFuncs {

/// Sets and clears six attributes: read-only (letter R), hidden (H), system (S), archive (A), temporary (T) and not
/// content indexed (I).
///
/// A choice is an int: 0 keeps the attribute, 1 sets it, any other value (2 by custom) clears it. All operations work
/// on folders, too, but Windows makes no folder temporary. VyrPlatform::FileAttributes describes how Linux stores
/// attributes.
class VYR_FUNCS_API AttributesFuncs
{
public:
    /// A choice for each attribute.
    struct ATTRIBUTESITEM
    {
        int readOnly = 0;
        int hidden = 0;
        int system = 0;
        int archive = 0;
        int temporary = 0;
        int notContentIndexed = 0;
    };

    AttributesFuncs();
    ~AttributesFuncs();
    AttributesFuncs& operator=(const AttributesFuncs& other);

    /// Applies all six choices, in the order of the record; a failure does not stop the others.
    /// @return 1 when all succeeded (keeping an attribute succeeds), else 0.
    static int SetModifiedFileAttributes(CString path, ATTRIBUTESITEM item);

    /// 1 (set) when the upper-case "R" occurs in `text`, else 2 (clear). The next operations do the same for their
    /// letters.
    static int GetSelectedReadOnlyAttributes(CString text);
    static int GetSelectedHiddenAttributes(CString text);
    static int GetSelectedSystemAttributes(CString text);
    static int GetSelectedArchiveAttributes(CString text);
    static int GetSelectedTemporaryAttributes(CString text);
    static int GetSelectedNotContentIndexedAttributes(CString text);

    /// Sets or clears the read-only attribute of the file at `path`. The next operations do the same for their
    /// attributes.
    /// @param isOn  nonzero sets it, 0 clears it.
    /// @return nonzero on success, else 0 (no file, no permission, a file system that keeps no attributes).
    static int SetReadOnlyAttributes(CString path, int isOn);
    static int SetHiddenAttributes(CString path, int isOn);
    static int SetSystemAttributes(CString path, int isOn);
    static int SetArchiveAttributes(CString path, int isOn);
    static int SetTemporaryAttributes(CString path, int isOn);
    static int SetNotContentIndexedAttributes(CString path, int isOn);

    /// The index of an attribute letter in the order of display, R H S D A T P L C O I E X V: 0 to 13, in either case.
    /// @return -1 for any other text.
    static int GetArrtibutesPriority(CString letter);

private:
    friend struct PrivateOperations;

    static int SetModifiedReadOnlyAttributes(CString path, int state);
    static int SetModifiedHiddenAttributes(CString path, int state);
    static int SetModifiedSystemAttributes(CString path, int state);
    static int SetModifiedArchiveAttributes(CString path, int state);
    static int SetModifiedTemporaryAttributes(CString path, int state);
    static int SetModifiedNotContentIndexedAttributes(CString path, int state);
    /// Applies one choice to the attribute with that index in the order of display.
    static int SetModifiedAttributes(CString path, int state, int index);
    /// Sets or clears the attribute with that index; an index of none of the six changes nothing.
    static int SetAttributes(CString path, int isSet, int index);
    /// 1 when `letter` occurs in `text`, else 2.
    static int GetSelectedAttributes(CString text, CString letter);
};

} // namespace VyrLibraryFuncs
