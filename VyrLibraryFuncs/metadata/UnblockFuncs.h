/// @file
/// The mark of a download.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryFuncs {

/// Removes the mark that files from the internet carry.
class VYR_FUNCS_API UnblockFuncs
{
public:
    UnblockFuncs();
    ~UnblockFuncs();
    UnblockFuncs& operator=(const UnblockFuncs& other);

    /// Removes the mark from the file at `path`, also when the file is read-only: then its read-only state is taken
    /// away for the removal and put back, whatever came of it. All other attributes and permissions stay.
    /// @return what FileUtils::DeleteZoneId gives: 1 when a mark was there and none is left, else 0.
    static int DeleteZoneId(CString path);
};

} // namespace VyrLibraryFuncs
