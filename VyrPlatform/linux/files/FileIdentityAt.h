// Queries an entry by its name in an open folder.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/files/FileIdentity.h>

namespace VyrPlatform {

/// LookAtFile for `name` in the folder of the descriptor `folder` (AT_FDCWD: `name` is a path).
[[nodiscard]] VYR_PLATFORM_API FileState LookAtFile(int folder, const char* name) noexcept;

} // namespace VyrPlatform
