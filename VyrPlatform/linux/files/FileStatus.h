// The results of statx as the file services need them.
#pragma once

#include "NativePath.h"

#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileTimes.h>

#include <fcntl.h>
#include <sys/stat.h>

namespace VyrPlatform {

/// Queries the fields of `mask` (STATX_...) of `path`, whose links are followed unless `flags` has AT_SYMLINK_NOFOLLOW.
/// @return false, with errno set, on failure.
[[nodiscard]] inline bool AskStatus(const NativePath& path, int flags, unsigned mask, struct statx& status) noexcept
{
    return statx(AT_FDCWD, path.Get(), flags, mask, &status) == 0;
}

/// Whether the file of `status` may be on a Windows file system: Linux's own file systems support the nodump attribute
/// (chattr +d), which NTFS lacks.
[[nodiscard]] inline bool MayBeNtfs(const struct statx& status) noexcept
{
    return !(status.stx_attributes_mask & STATX_ATTR_NODUMP);
}

/// The identity of the file of `status`, which was asked for STATX_INO.
[[nodiscard]] inline FileIdentity IdentityOf(const struct statx& status) noexcept
{
    return {static_cast<std::uint64_t>(status.stx_dev_major) << 32 | status.stx_dev_minor, status.stx_ino};
}

/// A time of the system as ticks, fractions rounded down; the nearest value for one out of range.
[[nodiscard]] FileTicks ToTicks(const struct statx_timestamp& time) noexcept;
/// The inverse.
[[nodiscard]] struct timespec ToTimespec(FileTicks ticks) noexcept;

} // namespace VyrPlatform
