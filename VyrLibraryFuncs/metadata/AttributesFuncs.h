/// @file
/// The attributes of files and folders.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryFuncs {

/// Sets and clears six attributes: read-only (letter R), hidden (H), system (S), archive (A), temporary (T) and not
/// content indexed (I).
///
/// A choice is an int: 0 keeps the attribute as it is, 1 sets it, any other value (2 by custom) clears it. What is told
/// here of a file holds for a folder, too. How Linux keeps attributes is told in VyrPlatform::FileAttributes.
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

    /// Carries out all six choices, in the order of the record; a failing one does not keep the others back.
    /// @return 1 when all succeeded (one that keeps its attribute does), else 0.
    static int SetModifiedFileAttributes(CString path, ATTRIBUTESITEM item);

    /// 1 (set) when the upper-case "R" occurs in `text`, else 2 (clear); so are the following, each with its letter.
    static int GetSelectedReadOnlyAttributes(CString text);
    static int GetSelectedHiddenAttributes(CString text);
    static int GetSelectedSystemAttributes(CString text);
    static int GetSelectedArchiveAttributes(CString text);
    static int GetSelectedTemporaryAttributes(CString text);
    static int GetSelectedNotContentIndexedAttributes(CString text);

    /// Sets the read-only attribute of the file at `path`, or clears it; so do the following, each with its attribute.
    /// @param isOn  nonzero: set.
    /// @return nonzero on success, else 0 (no file, no permission, a file system that keeps no attributes).
    static int SetReadOnlyAttributes(CString path, int isOn);
    static int SetHiddenAttributes(CString path, int isOn);
    static int SetSystemAttributes(CString path, int isOn);
    static int SetArchiveAttributes(CString path, int isOn);
    static int SetTemporaryAttributes(CString path, int isOn);
    static int SetNotContentIndexedAttributes(CString path, int isOn);

    /// The place of an attribute letter in the order of display, R H S D A T P L C O I E X V: 0 to 13, in either case.
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
    /// Carries out one choice for the attribute with that place in the order of display.
    static int SetModifiedAttributes(CString path, int state, int index);
    /// Sets or clears the attribute with that place; a place of none of the six changes no attribute.
    static int SetAttributes(CString path, int isSet, int index);
    /// 1 when `letter` occurs in `text`, else 2.
    static int GetSelectedAttributes(CString text, CString letter);
};

} // namespace VyrLibraryFuncs
