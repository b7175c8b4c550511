#include <VyrPlatform/files/FileCopy.h>

#include "Descriptor.h"
#include "FileContent.h"
#include "FileMetadata.h"
#include "FileStatus.h"
#include "FlushFolder.h"

#include <VyrPlatform/common/files/TemporaryPath.h>
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileSystem.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace VyrPlatform::FileCopy {

namespace {

enum class Flush : bool
{
    No,
    Yes
};

/// The error code of a call that has just returned `result`.
int ErrorOf(int result) noexcept
{
    return result == 0 ? 0 : errno;
}

/// The state of the entry at `path` itself.
int AskSource(const NativePath& path, struct statx& status) noexcept
{
    constexpr unsigned mask =
        STATX_TYPE | STATX_NLINK | STATX_INO | STATX_SIZE | STATX_ATIME | STATX_MTIME | STATX_UID | STATX_GID;
    return AskStatus(path, AT_SYMLINK_NOFOLLOW, mask, status) ? 0 : errno;
}

bool IsSameFile(const struct statx& left, const struct statx& right) noexcept
{
    return left.stx_ino == right.stx_ino && left.stx_dev_major == right.stx_dev_major &&
           left.stx_dev_minor == right.stx_dev_minor;
}

/// The result of MayReplace for two names of one file; the system never gives it there.
constexpr int isSameFile = EINVAL;

/// Whether `source` may replace the entry at `destination`: 0 (also when there is none), or the error code.
int MayReplace(const struct statx& source, const CString& destination)
{
    struct statx status;
    if (!AskStatus(NativePath(destination), AT_SYMLINK_NOFOLLOW, STATX_TYPE | STATX_INO, status))
        return errno == ENOENT ? 0 : errno;
    if (S_ISDIR(status.stx_mode))
        return EISDIR;
    if (IsSameFile(source, status))
        return isSameFile;
    return S_ISREG(status.stx_mode) && FileAttributes::IsReadOnly(destination) ? EACCES : 0;
}

int FillCopy(int source, int target, Flush flush)
{
    struct stat status;
    if (fstat(source, &status) != 0)
        return errno;
    if (!S_ISREG(status.st_mode))
        return ENOTSUP;
    if (const int error = CopyContent(source, target, status))
        return error;
    if (const int error = CopyMetadata(source, target, status))
        return error;
    return flush == Flush::Yes ? ErrorOf(fsync(target)) : 0;
}

/// Creates the new file `destination` completely, or not at all.
int CopyRegularFile(const NativePath& source, const NativePath& destination, Flush flush)
{
    const Descriptor from(open(source.Get(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
    if (!from.IsOpen())
        return errno;
    // Nobody else may read the copy before it has its own mode.
    Descriptor to(open(destination.Get(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!to.IsOpen())
        return errno;
    int error = FillCopy(from.Get(), to.Get(), flush);
    if (const int closeError = to.Close(); error == 0)
        error = closeError;
    if (error != 0)
        unlink(destination.Get());
    return error;
}

/// Creates the new link `destination` completely, or not at all.
int CopyLink(const NativePath& source, const struct statx& status, const NativePath& destination)
{
    char target[PATH_MAX];
    const ssize_t length = readlink(source.Get(), target, sizeof target - 1);
    if (length < 0)
        return errno;
    target[length] = '\0';
    if (symlink(target, destination.Get()) != 0)
        return errno;
    const auto toTime = [](const struct statx_timestamp& time) {
        return timespec{time.tv_sec, static_cast<long>(time.tv_nsec)};
    };
    const struct timespec times[] = {toTime(status.stx_atime), toTime(status.stx_mtime)};
    // A link is as good without its owner and times.
    static_cast<void>(lchown(destination.Get(), status.stx_uid, status.stx_gid) == 0 &&
                      utimensat(AT_FDCWD, destination.Get(), times, AT_SYMLINK_NOFOLLOW) == 0);
    return 0;
}

/// Creates the new entry `destination` completely, or not at all.
int CopyEntry(const NativePath& source, const struct statx& status, const NativePath& destination, Flush flush)
{
    if (S_ISREG(status.stx_mode))
        return CopyRegularFile(source, destination, flush);
    if (S_ISLNK(status.stx_mode))
        return CopyLink(source, status, destination);
    return S_ISDIR(status.stx_mode) ? EISDIR : ENOTSUP;
}

/// Whether a call failed because the folder is not writable.
bool IsFolderLocked(int error) noexcept
{
    return error == EACCES || error == EPERM || error == EROFS;
}

/// Overwrites the file `destination` with the file `source`.
/// @return 0, or the error code; `folderError` when either is not a regular file or the second is not writable.
int CopyInPlace(const NativePath& source, const NativePath& destination, Flush flush, int folderError)
{
    const Descriptor from(open(source.Get(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
    Descriptor to(open(destination.Get(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
    struct stat status;
    if (!from.IsOpen() || !to.IsOpen() || fstat(from.Get(), &status) != 0 || !S_ISREG(status.st_mode) ||
        fstat(to.Get(), &status) != 0 || !S_ISREG(status.st_mode) || ftruncate(to.Get(), 0) != 0)
        return folderError;
    const int error = FillCopy(from.Get(), to.Get(), flush);
    const int closeError = to.Close();
    return error != 0 ? error : closeError;
}

int CopyOver(const NativePath& source, const struct statx& status, const CString& destination, Flush flush)
{
    if (const int error = MayReplace(status, destination))
        return error;
    const NativePath temporary(MakeTemporaryPath(destination));
    if (const int error = CopyEntry(source, status, temporary, flush))
        return IsFolderLocked(error) ? CopyInPlace(source, NativePath(destination), flush, error) : error;
    const int error = ErrorOf(std::rename(temporary.Get(), NativePath(destination).Get()));
    if (error != 0)
        unlink(temporary.Get());
    return error;
}

int Copy(const CString& source, const CString& destination, Flush flush)
{
    const NativePath from(source);
    struct statx status;
    if (const int error = AskSource(from, status))
        return error;
    const int error = CopyEntry(from, status, NativePath(destination), flush);
    return error == EEXIST ? CopyOver(from, status, destination, flush) : error;
}

/// Whether `source` is still the file of `status`: if somebody has written to it, its copy is incomplete.
bool IsUnchanged(const NativePath& source, const struct statx& status) noexcept
{
    struct statx now;
    return AskSource(source, now) == 0 && IsSameFile(now, status) && now.stx_size == status.stx_size &&
           ToTicks(now.stx_mtime) == ToTicks(status.stx_mtime);
}

int MoveByCopy(const CString& source, const struct statx& status, const CString& destination)
{
    if (const int error = Copy(source, destination, Flush::Yes))
        return error;
    const CString folder = GetFolderOf(destination);
    if (const std::uint32_t error = FlushFolder(folder.IsEmpty() ? CString(u".") : folder))
        return static_cast<int>(error);
    const NativePath from(source);
    return IsUnchanged(from, status) ? ErrorOf(unlink(from.Get())) : EBUSY;
}

bool IsSameEntry(const CString& left, const CString& right)
{
    const CString leftFolder = GetFolderOf(left);
    const CString rightFolder = GetFolderOf(right);
    return left.Mid(leftFolder.GetLength()) == right.Mid(rightFolder.GetLength()) &&
           LookAtFile(leftFolder + u".").identity == LookAtFile(rightFolder + u".").identity;
}

/// Removes `source`, another name of the file `destination`. The two may be one entry even where their names differ, in
/// a folder that ignores case.
int RemoveSecondName(const CString& source, const CString& destination)
{
    if (IsSameEntry(source, destination))
        return isSameFile;
    const NativePath from(source);
    const NativePath temporary(MakeTemporaryPath(source));
    if (const int error = ErrorOf(std::rename(from.Get(), temporary.Get())))
        return error;
    if (FileSystem::Exists(destination))
        return ErrorOf(unlink(temporary.Get()));
    const int error = ErrorOf(std::rename(temporary.Get(), from.Get()));
    return error != 0 ? error : isSameFile;
}

/// Whether the user may remove `source`, whose state is `status`, from its folder.
bool CanBeRemoved(const CString& source, const struct statx& status)
{
    constexpr std::uint64_t fixed = STATX_ATTR_IMMUTABLE | STATX_ATTR_APPEND;
    const NativePath folder(GetFolderOf(source) + u".");
    struct statx folderStatus;
    if (faccessat(AT_FDCWD, folder.Get(), W_OK | X_OK, AT_EACCESS) != 0 ||
        !AskStatus(folder, 0, STATX_MODE | STATX_UID, folderStatus) ||
        ((status.stx_attributes | folderStatus.stx_attributes) & fixed))
        return false;
    const uid_t user = geteuid();
    return !(folderStatus.stx_mode & S_ISVTX) || user == 0 || user == status.stx_uid || user == folderStatus.stx_uid;
}

int MoveFrom(const CString& source, const CString& destination)
{
    const NativePath from(source);
    struct statx status;
    if (const int error = AskSource(from, status))
        return error;
    if (S_ISDIR(status.stx_mode))
        return EISDIR;
    if (const int error = MayReplace(status, destination))
        return error == isSameFile && status.stx_nlink > 1 ? RemoveSecondName(source, destination) : error;
    const int error = ErrorOf(std::rename(from.Get(), NativePath(destination).Get()));
    const bool isLocked = IsFolderLocked(error) && FileSystem::Exists(destination) && CanBeRemoved(source, status);
    return error == EXDEV || isLocked ? MoveByCopy(source, status, destination) : error;
}

} // namespace

std::uint32_t Copy(const CString& source, const CString& destination)
{
    return static_cast<std::uint32_t>(Copy(source, destination, Flush::No));
}

std::uint32_t Move(const CString& source, const CString& destination)
{
    return static_cast<std::uint32_t>(MoveFrom(source, destination));
}

std::uint32_t CopyFolderMode(const CString& source, const CString& destination, OwnerAccess access)
{
    const NativePath to(destination);
    struct statx from;
    struct statx now;
    if (!AskStatus(NativePath(source), 0, STATX_MODE | STATX_GID, from) || !AskStatus(to, 0, STATX_GID, now))
        return static_cast<std::uint32_t>(errno);
    mode_t permissions = from.stx_mode & (S_IRWXU | S_IRWXG | S_IRWXO | S_ISVTX);
    if (from.stx_gid == now.stx_gid)
        permissions |= from.stx_mode & S_ISGID;
    if (access == OwnerAccess::Full)
        permissions |= S_IRWXU;
    return static_cast<std::uint32_t>(ErrorOf(chmod(to.Get(), permissions)));
}

std::uint32_t RemoveEmptyFolder(const CString& path)
{
    return static_cast<std::uint32_t>(ErrorOf(rmdir(NativePath(path).Get())));
}

} // namespace VyrPlatform::FileCopy
