// Permissions for the names in a folder, on Linux: mode, access lists, file attributes and the sticky bit.
#include <VyrHostPlatform/FolderPermission.h>

#include <VyrPlatform/linux/files/NativePath.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace VyrHostPlatform {

using VyrPlatform::NativePath;

FolderPermission GetFolderPermission(const CString& path)
{
    const NativePath native(path);
    if (faccessat(AT_FDCWD, native.Get(), W_OK | X_OK, AT_EACCESS) != 0)
        return {.error = static_cast<std::uint32_t>(errno)};
    struct statx status;
    if (statx(AT_FDCWD, native.Get(), 0, STATX_MODE | STATX_UID, &status) != 0)
        return {.error = static_cast<std::uint32_t>(errno)};
    if ((status.stx_attributes & (STATX_ATTR_IMMUTABLE | STATX_ATTR_APPEND)) != 0)
        return {.error = EPERM};
    const uid_t user = geteuid();
    return {.ownEntriesOnly = (status.stx_mode & S_ISVTX) != 0 && user != 0 && user != status.stx_uid};
}

bool IsOwnEntry(const CString& path)
{
    struct stat status;
    return lstat(NativePath(path).Get(), &status) == 0 && status.st_uid == geteuid();
}

} // namespace VyrHostPlatform
