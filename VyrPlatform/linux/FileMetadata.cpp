// Copies what a file has besides its content.
#include "FileMetadata.h"

#include <cerrno>
#include <cstddef>
#include <linux/limits.h>
#include <optional>
#include <string>
#include <string_view>
#include <sys/xattr.h>
#include <unistd.h>

namespace VyrPlatform {

namespace {

/// Whether a call failed since the file system has no such thing or the user may not set it, which spoils no copy.
bool IsRefused(int error) noexcept
{
    return error == EPERM || error == EACCES || error == ENOTSUP || error == EINVAL || error == ENOSYS ||
           error == E2BIG || error == ERANGE;
}

/// The error code that a call's `result` stands for; 0 when it was refused.
int ErrorOf(int result) noexcept
{
    return result == 0 || IsRefused(errno) ? 0 : errno;
}

/// @return whether the file has the owner and group of `status` now.
bool CopyOwner(int target, const struct stat& status) noexcept
{
    struct stat now;
    if (fstat(target, &now) == 0 && now.st_uid == status.st_uid && now.st_gid == status.st_gid)
        return true;
    return fchown(target, status.st_uid, status.st_gid) == 0;
}

/// The answer of one of the system's calls that fill a buffer, which is asked with a bigger one until it fits; nothing
/// when it fails.
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

int CopyExtendedAttribute(int source, int target, const char* name)
{
    const auto value =
        AskForBytes([source, name](char* buffer, std::size_t size) { return fgetxattr(source, name, buffer, size); });
    return value ? ErrorOf(fsetxattr(target, name, value->data(), value->size(), 0)) : 0;
}

int CopyExtendedAttributes(int source, int target)
{
    const auto names =
        AskForBytes([source](char* buffer, std::size_t size) { return flistxattr(source, buffer, size); });
    for (std::size_t start = 0; names && start < names->size();) {
        const char* const name = names->c_str() + start;
        if (const int error = CopyExtendedAttribute(source, target, name))
            return error;
        start += std::string_view(name).size() + 1;
    }
    return 0;
}

} // namespace

int CopyMetadata(int source, int target, const struct stat& status)
{
    // A change of the owner takes capabilities and the set-id bits away, and the mode may forbid to set attributes.
    mode_t mode = status.st_mode & 07777;
    if (!CopyOwner(target, status))
        mode &= static_cast<mode_t>(~(S_ISUID | S_ISGID));
    if (const int error = CopyExtendedAttributes(source, target))
        return error;
    if (const int error = ErrorOf(fchmod(target, mode)))
        return error;
    const struct timespec times[] = {status.st_atim, status.st_mtim};
    return ErrorOf(futimens(target, times));
}

} // namespace VyrPlatform
