// What a file has besides its content: owner, extended attributes, mode, times.
#pragma once

#include <sys/stat.h>

namespace VyrPlatform {

/// Gives the new file `target` what `source` has, whose state before it was read is `status`. What the user may not
/// give or the file system of `target` cannot keep is left out.
/// @return 0, or the error code.
[[nodiscard]] int CopyMetadata(int source, int target, const struct stat& status);

} // namespace VyrPlatform
