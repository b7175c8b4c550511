// Whether a file is read-only, where its status is known already.
#pragma once

#include "NativePath.h"

#include <sys/stat.h>

namespace VyrPlatform {

/// Whether the file (no folder) at `path`, which has `status`, is read-only: by its mode, or by what Samba or an NTFS
/// driver keeps. So is one of which the user may not read what is kept.
[[nodiscard]] bool IsReadOnlyFile(const NativePath& path, const struct statx& status);

} // namespace VyrPlatform
