// The private operations of the function classes, for the tests: a section for each class with a forwarder for each
// operation.
#pragma once

#include <VyrLibraryFuncs/select/FilterFuncs.h>

namespace VyrLibraryFuncs {

struct PrivateOperations
{
    // FilterFuncs

    static int IsMatchCondition(CString name, FilterFuncs::FILTERITEM item)
    {
        return FilterFuncs::IsMatchCondition(name, item);
    }
};

} // namespace VyrLibraryFuncs
