#pragma once

#include <string_view>
#include <sys/stat.h>

namespace VyrPlatform {

/// Writes all of `bytes` to the open file `target`, from `place` on.
/// @return 0, or the error code: ENOSPC where the system takes no bytes and names no error.
[[nodiscard]] int WriteAllAt(int target, off_t place, std::string_view bytes);

/// Copies the content of `source`, whose state is `status`, to the new file `target`: by sharing its blocks where the
/// file system can, else within the kernel, else through a buffer. Holes stay holes.
/// @return 0, or the error code.
[[nodiscard]] int CopyContent(int source, int target, const struct stat& status);

} // namespace VyrPlatform
