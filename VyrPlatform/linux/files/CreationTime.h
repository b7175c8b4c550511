// When a file was created, from all that Linux and others keep of it.
#pragma once

#include "ExtendedAttributes.h"

#include <VyrPlatform/files/FileTimes.h>

#include <sys/stat.h>

namespace VyrPlatform {

/// The creation time of the file at `path`, of which `status` has the birth time and that of the last write.
[[nodiscard]] ExtendedAttributes::Reading<FileTicks> CreatedOf(const NativePath& path, const struct statx& status);

} // namespace VyrPlatform
