// What statx tells, in the words of the file services.
#pragma once

#include "NativePath.h"

#include <VyrPlatform/files/FileTimes.h>

#include <fcntl.h>
#include <sys/stat.h>

namespace VyrPlatform {

/// Asks the system once about `path`, whose links are followed unless `flags` has AT_SYMLINK_NOFOLLOW, for the fields
/// of `mask` (STATX_...).
/// @return false, with errno set, when there is no answer.
[[nodiscard]] inline bool AskStatus(const NativePath& path, int flags, unsigned mask, struct statx& status) noexcept
{
    return statx(AT_FDCWD, path.Get(), flags, mask, &status) == 0;
}

/// A time of the system as ticks, fractions rounded down; one beyond them gives the nearest.
[[nodiscard]] FileTicks ToTicks(const struct statx_timestamp& time) noexcept;
/// The inverse.
[[nodiscard]] struct timespec ToTimespec(FileTicks ticks) noexcept;

} // namespace VyrPlatform
