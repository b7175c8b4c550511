// Whether a file is read-only, given its status.
#pragma once

#include "NativePath.h"

#include <sys/stat.h>

namespace VyrPlatform {

/// Whether the file (not a folder) at `path`, which has `status`, is read-only: by its mode, or by the attributes from
/// Samba or an NTFS driver. True if the user may not read those.
[[nodiscard]] bool IsReadOnlyFile(const NativePath& path, const struct statx& status);

} // namespace VyrPlatform
