// One statx for an entry, two for a link.
#include <VyrPlatform/files/FileSystem.h>

#include "FileStatus.h"

#include <VyrPlatform/text/Encoding.h>

#include <cerrno>
#include <climits>
#include <unistd.h>

namespace VyrPlatform::FileSystem {

namespace {

Kind KindOf(const struct statx& status) noexcept
{
    if (S_ISREG(status.stx_mode))
        return Kind::File;
    return S_ISDIR(status.stx_mode) ? Kind::Folder : Kind::Other;
}

} // namespace

Entry Query(const CString& path)
{
    constexpr unsigned mask = STATX_TYPE | STATX_SIZE | STATX_MTIME | STATX_ATIME | STATX_BTIME;
    const NativePath nativePath(path);
    Entry entry;
    struct statx status;
    if (!AskStatus(nativePath, AT_SYMLINK_NOFOLLOW, mask, status))
        return entry;
    if (S_ISLNK(status.stx_mode)) {
        entry.isLink = true;
        entry.kind = Kind::Other;
        if (!AskStatus(nativePath, 0, mask, status))
            return entry;
    }
    entry.kind = KindOf(status);
    if (entry.kind == Kind::File)
        entry.size = static_cast<std::int64_t>(status.stx_size);
    entry.modified = ToTicks(status.stx_mtime);
    entry.accessed = ToTicks(status.stx_atime);
    if (status.stx_mask & STATX_BTIME)
        entry.created = ToTicks(status.stx_btime);
    return entry;
}

bool Exists(const CString& path)
{
    struct statx status;
    return AskStatus(NativePath(path), AT_SYMLINK_NOFOLLOW, STATX_TYPE, status);
}

bool IsFolder(const CString& path)
{
    struct statx status;
    return AskStatus(NativePath(path), 0, STATX_TYPE, status) && S_ISDIR(status.stx_mode);
}

std::optional<CString> GetLinkTarget(const CString& path)
{
    char target[PATH_MAX];
    const ssize_t length = readlink(NativePath(path).Get(), target, sizeof target);
    if (length < 0)
        return std::nullopt;
    return Encoding::FromNameBytes({target, static_cast<std::size_t>(length)});
}

std::uint32_t CreateFolder(const CString& path)
{
    return mkdir(NativePath(path).Get(), 0777) == 0 ? 0 : static_cast<std::uint32_t>(errno);
}

std::uint32_t RemoveFile(const CString& path)
{
    return unlink(NativePath(path).Get()) == 0 ? 0 : static_cast<std::uint32_t>(errno);
}

bool IsSeparator(char16_t unit) noexcept
{
    return unit == Separator();
}

char16_t Separator() noexcept
{
    return u'/';
}

} // namespace VyrPlatform::FileSystem
