// The creation time of a file, from all its sources.
#pragma once

#include "ExtendedAttributes.h"

#include <VyrPlatform/files/FileTimes.h>

#include <sys/stat.h>

namespace VyrPlatform {

/// The creation time of the file at `path`; `status` has its birth time and last-write time.
[[nodiscard]] ExtendedAttributes::Reading<FileTicks> CreatedOf(const NativePath& path, const struct statx& status);

} // namespace VyrPlatform
