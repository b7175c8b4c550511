#pragma once

#include <sys/stat.h>

namespace VyrPlatform {

/// Copies the content of `source`, whose state is `status`, to the new file `target`: by sharing its blocks where the
/// file system can, else within the kernel, else through a buffer. Holes stay holes.
/// @return 0, or the error code.
[[nodiscard]] int CopyContent(int source, int target, const struct stat& status);

} // namespace VyrPlatform
