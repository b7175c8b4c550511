// A file's three times on Linux.
#include <VyrPlatform/files/FileTimes.h>

#include "ExtendedAttributes.h"
#include "FileStatus.h"

#include <cerrno>

namespace VyrPlatform::FileTimes {

std::optional<FileTicks> GetModified(const CString& path)
{
    struct statx status;
    if (!AskStatus(NativePath(path), 0, STATX_MTIME, status))
        return std::nullopt;
    return ToTicks(status.stx_mtime);
}

std::optional<FileTicks> GetCreated(const CString& path)
{
    const NativePath nativePath(path);
    struct statx status;
    if (!AskStatus(nativePath, 0, STATX_BTIME | STATX_MTIME, status))
        return std::nullopt;
    if (const auto kept = ExtendedAttributes::GetSambaCreated(nativePath))
        return kept;
    // A file system of Windows that tells a birth time tells the same as in its attributes.
    if (status.stx_mask & STATX_BTIME)
        return ToTicks(status.stx_btime);
    if (const auto kept = ExtendedAttributes::GetNtfsCreated(nativePath))
        return kept;
    return ToTicks(status.stx_mtime);
}

std::optional<FileTicks> GetAccessed(const CString& path)
{
    struct statx status;
    if (!AskStatus(NativePath(path), 0, STATX_ATIME, status))
        return std::nullopt;
    return ToTicks(status.stx_atime);
}

std::uint32_t SetModified(const CString& path, FileTicks modified)
{
    const struct timespec times[] = {{0, UTIME_OMIT}, ToTimespec(modified)};
    return utimensat(AT_FDCWD, NativePath(path).Get(), times, 0) == 0 ? 0 : static_cast<std::uint32_t>(errno);
}

std::uint32_t SetCreated(const CString& path, FileTicks created)
{
    const NativePath nativePath(path);
    // What is read first is written, too.
    if (ExtendedAttributes::GetSambaCreated(nativePath) || ExtendedAttributes::SetNtfsCreated(nativePath, created) != 0)
        return static_cast<std::uint32_t>(ExtendedAttributes::SetSambaCreated(nativePath, created));
    return 0;
}

} // namespace VyrPlatform::FileTimes
