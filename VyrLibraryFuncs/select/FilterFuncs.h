/// @file
/// Name filters: choose the files of a list.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>

#include <vector>

namespace VyrLibraryFuncs {

/// Decides by name which files stay in a list.
///
/// A filter is a list of conditions and a mode. Conditions are tried in their order until one matches; each try drains
/// one message of the calling thread, and a stop ends the tries.
///
/// Example: the mode Include with the conditions "ends with .jpg" and "begins with IMG" keeps `a.jpg` and `IMG_1.png`
/// and drops `b.png`; the mode Exclude keeps only `b.png`.
class VYR_FUNCS_API FilterFuncs
{
public:
    /// Whether matching entries are kept, by the `mode` of a call. Any other value keeps every entry.
    enum class Mode : int
    {
        /// Keeps entries that match a condition, and so nothing where no condition is enabled.
        Include = 0,
        /// Keeps entries that match no condition.
        Exclude = 1
    };

    /// FILTERITEM::condition: how `text` is compared with a name. Any other value matches no name.
    ///
    /// An empty text equals only an empty name, and is contained in, begins and ends every name.
    enum class Condition : int
    {
        Equals = 0,
        Contains = 1,
        BeginsWith = 2,
        EndsWith = 3
    };

    /// One condition.
    struct FILTERITEM
    {
        /// For the host; not read here.
        int filterValue = 0;
        /// Not 0: the condition is used.
        int enabled = 0;
        /// The text to find.
        CString text;
        /// A value of Condition.
        int condition = 0;
        /// Not 0: upper and lower case differ. 0: both texts are lower-cased first, as CString::MakeLower does.
        int matchCase = 0;
    };

    FilterFuncs();
    ~FilterFuncs();
    FilterFuncs& operator=(const FilterFuncs&);

    /// Whether the entry at `path` is kept (1 or 0). Its file name with extension is compared. A path that does not
    /// exist is kept.
    /// @param mode  a value of Mode.
    static int IsMatch(CString path, int mode, std::vector<FILTERITEM> items);
    /// Whether an entry called `name` is kept (1 or 0). No file is read. An empty name is kept.
    static int IsMatchName(CString name, int mode, std::vector<FILTERITEM> items);

    /// Whether `list` contains `text`, ignoring case (1 or 0). Drains one message for each element; a stop ends the
    /// search.
    static int IsAlreadyAdded(CString text, std::vector<CString> list);

private:
    friend struct PrivateOperations;

    static int IsMatchCondition(CString name, FILTERITEM item);
};

} // namespace VyrLibraryFuncs
