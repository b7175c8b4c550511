#include "FileMetadata.h"

#include <cerrno>
#include <cstddef>
#include <linux/limits.h>
#include <optional>
#include <string>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace VyrPlatform {

namespace {

/// Whether a call failed because the file system lacks the feature or the user lacks permission. The copy is still
/// valid.
bool IsRefused(int error) noexcept
{
    return error == EPERM || error == EACCES || error == ENOTSUP || error == EINVAL || error == ENOSYS ||
           error == E2BIG || error == ERANGE;
}

/// The error code for the `result` of a call; 0 when it was refused.
int ErrorOf(int result) noexcept
{
    return result == 0 || IsRefused(errno) ? 0 : errno;
}

/// The output of a system call that fills a buffer, which grows until it is large enough; nothing on failure.
template <class Call>
std::optional<std::string> AskForBytes(Call call)
{
    std::string bytes(1024, '\0');
    ssize_t size = call(bytes.data(), bytes.size());
    while (size < 0 && errno == ERANGE && bytes.size() < XATTR_SIZE_MAX) {
        bytes.resize(bytes.size() * 8);
        size = call(bytes.data(), bytes.size());
    }
    if (size < 0)
        return std::nullopt;
    bytes.resize(static_cast<std::size_t>(size));
    return bytes;
}

/// The attributes that `list` names, with their values from `get`.
template <class List, class Get>
ExtendedList ReadAttributes(List list, Get get)
{
    ExtendedList attributes;
    const auto names = AskForBytes(list);
    for (std::size_t start = 0; names && start < names->size();) {
        std::string name(names->c_str() + start);
        start += name.size() + 1;
        auto value =
            AskForBytes([&get, &name](char* buffer, std::size_t size) { return get(name.c_str(), buffer, size); });
        if (value)
            attributes.emplace_back(std::move(name), std::move(*value));
    }
    return attributes;
}

} // namespace

bool SetOwner(int file, uid_t owner, gid_t group) noexcept
{
    struct stat now;
    if (fstat(file, &now) == 0 && now.st_uid == owner && now.st_gid == group)
        return true;
    return fchown(file, owner, group) == 0;
}

int SetPermissions(int file, mode_t permissions, bool hasOwner) noexcept
{
    const auto setIds = static_cast<mode_t>(S_ISUID | S_ISGID);
    return ErrorOf(fchmod(file, hasOwner ? permissions : permissions & ~setIds));
}

ExtendedList GetExtendedAttributes(int file)
{
    return ReadAttributes(
        [file](char* buffer, std::size_t size) { return flistxattr(file, buffer, size); },
        [file](const char* name, char* buffer, std::size_t size) { return fgetxattr(file, name, buffer, size); });
}

ExtendedList GetExtendedAttributes(const NativePath& path)
{
    return ReadAttributes([&path](char* buffer, std::size_t size) { return llistxattr(path.Get(), buffer, size); },
                          [&path](const char* name, char* buffer, std::size_t size) {
                              return lgetxattr(path.Get(), name, buffer, size);
                          });
}

int SetExtendedAttributes(int file, const ExtendedList& attributes)
{
    for (const auto& [name, value] : attributes)
        if (const int error = ErrorOf(fsetxattr(file, name.c_str(), value.data(), value.size(), 0)))
            return error;
    return 0;
}

int CopyMetadata(int source, int target, const struct stat& status)
{
    // A change of the owner clears capabilities and the set-id bits, and the mode may forbid setting attributes.
    const bool hasOwner = SetOwner(target, status.st_uid, status.st_gid);
    if (const int error = SetExtendedAttributes(target, GetExtendedAttributes(source)))
        return error;
    if (const int error = SetPermissions(target, PermissionsOf(status), hasOwner))
        return error;
    const struct timespec times[] = {status.st_atim, status.st_mtim};
    return ErrorOf(futimens(target, times));
}

} // namespace VyrPlatform
