// Copies owner, extended attributes, mode and times of a file.
#pragma once

#include "NativePath.h"

#include <VyrPlatform/Export.h>

#include <string>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace VyrPlatform {

/// The low twelve bits of the mode.
[[nodiscard]] constexpr mode_t PermissionsOf(const struct stat& status) noexcept
{
    return status.st_mode & 07777;
}

/// Makes owner and group those, as far as the user may.
/// @return whether the open file has both now.
[[nodiscard]] VYR_PLATFORM_API bool SetOwner(int file, uid_t owner, gid_t group) noexcept;

/// Gives the open file these permissions, the set-id bits only where it has the owner that they are of.
/// @return 0, or the error code; 0 where the user may not.
[[nodiscard]] VYR_PLATFORM_API int SetPermissions(int file, mode_t permissions, bool hasOwner) noexcept;

/// Names and values.
using ExtendedList = std::vector<std::pair<std::string, std::string>>;

[[nodiscard]] ExtendedList GetExtendedAttributes(int file);
/// Those of what stands at `path` itself, be it a link.
[[nodiscard]] VYR_PLATFORM_API ExtendedList GetExtendedAttributes(const NativePath& path);
/// What the user may not set, or the file system cannot keep, is left out.
/// @return 0, or the error code.
[[nodiscard]] VYR_PLATFORM_API int SetExtendedAttributes(int file, const ExtendedList& attributes);

/// Gives the new file `target` the metadata of `source`, whose state before it was read is `status`. Leaves out what
/// the user may not set and what the file system of `target` cannot keep.
/// @return 0, or the error code.
[[nodiscard]] int CopyMetadata(int source, int target, const struct stat& status);

} // namespace VyrPlatform
