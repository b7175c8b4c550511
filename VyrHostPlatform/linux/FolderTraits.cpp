// The traits of a folder on Linux: owner, mode, extended attributes.
#include <VyrHostPlatform/FolderTraits.h>

#include <VyrPlatform/linux/files/Descriptor.h>
#include <VyrPlatform/linux/files/FileMetadata.h>
#include <VyrPlatform/linux/files/NativePath.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

namespace {

/// Opens the folder at `path`. When its mode forbids that, its owner gets access first.
int OpenFolder(const CString& path)
{
    constexpr int how = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    const NativePath native(path);
    const int folder = open(native.Get(), how);
    struct stat status;
    if (folder >= 0 || errno != EACCES || lstat(native.Get(), &status) != 0 || !S_ISDIR(status.st_mode) ||
        chmod(native.Get(), PermissionsOf(status) | S_IRWXU) != 0)
        return folder;
    return open(native.Get(), how);
}

} // namespace

std::optional<FolderTraits> GetFolderTraits(const CString& path)
{
    // By path: a folder without read permission cannot be opened.
    const NativePath native(path);
    struct stat status;
    if (lstat(native.Get(), &status) != 0 || !S_ISDIR(status.st_mode))
        return std::nullopt;
    return FolderTraits{.mode = PermissionsOf(status),
                        .owner = status.st_uid,
                        .group = status.st_gid,
                        .extended = GetExtendedAttributes(native)};
}

std::uint32_t SetFolderExtras(const CString& path, const FolderTraits& traits)
{
    const Descriptor folder(OpenFolder(path));
    if (!folder.IsOpen())
        return static_cast<std::uint32_t>(errno);
    static_cast<void>(SetOwner(folder.Get(), traits.owner, traits.group));
    return static_cast<std::uint32_t>(SetExtendedAttributes(folder.Get(), traits.extended));
}

std::uint32_t SetFolderMode(const CString& path, const FolderTraits& traits)
{
    const Descriptor folder(OpenFolder(path));
    if (!folder.IsOpen())
        return static_cast<std::uint32_t>(errno);
    const bool hasOwner = SetOwner(folder.Get(), traits.owner, traits.group);
    return static_cast<std::uint32_t>(SetPermissions(folder.Get(), traits.mode, hasOwner));
}

} // namespace VyrHostPlatform
