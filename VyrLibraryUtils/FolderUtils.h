/// @file
/// Creates folders.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryUtils {

/// Folders.
class VYR_UTILS_API FolderUtils
{
public:
    FolderUtils();
    ~FolderUtils();
    FolderUtils& operator=(const FolderUtils&);

    /// Creates the folder `path` and every missing parent.
    /// @return 1 when the folder (or a link to one) exists afterwards, also when it did before; else 0, such as for a
    /// file of that name and for an empty text. Folders that were created before a failure are kept.
    static int CreateFolderPathExists(CString path);
};

} // namespace VyrLibraryUtils
