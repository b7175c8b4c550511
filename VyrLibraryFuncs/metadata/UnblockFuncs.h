/// @file
/// The mark of a download.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryFuncs {

/// Removes the mark of files that were downloaded from the internet.
class VYR_FUNCS_API UnblockFuncs
{
public:
    UnblockFuncs();
    ~UnblockFuncs();
    UnblockFuncs& operator=(const UnblockFuncs& other);

    /// Removes the mark from the file at `path`, also when the file is read-only: then it is made writable for the
    /// removal and read-only again afterwards, even after a failure. Other attributes and permissions are kept.
    /// @return the result of FileUtils::DeleteZoneId: 1 when there was a mark and none is left, else 0.
    static int DeleteZoneId(CString path);
};

} // namespace VyrLibraryFuncs
