// Permissions for the names in a folder, on Windows: the folder is opened for adding files and folders.
#include <VyrHostPlatform/FolderPermission.h>

#include <VyrPlatform/windows/files/OpenEntry.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

FolderPermission GetFolderPermission(const CString& path)
{
    const Handle folder = OpenEntry(LongPath(path), FILE_ADD_FILE | FILE_ADD_SUBDIRECTORY, Links::Follow);
    return {.error = folder.IsOpen() ? ERROR_SUCCESS : GetLastError()};
}

bool IsOwnEntry(const CString& /*path*/)
{
    return true;
}

} // namespace VyrHostPlatform
