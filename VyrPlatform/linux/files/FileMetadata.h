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

/// Sets owner and group, where the user may.
/// @return whether the open file has both now.
[[nodiscard]] VYR_PLATFORM_API bool SetOwner(int file, uid_t owner, gid_t group) noexcept;

/// Sets the permissions of the open file, the set-id bits only where the file has their owner.
/// @return 0, or the error code; 0 where the user may not.
[[nodiscard]] VYR_PLATFORM_API int SetPermissions(int file, mode_t permissions, bool hasOwner) noexcept;

/// Names and values.
using ExtendedList = std::vector<std::pair<std::string, std::string>>;

[[nodiscard]] ExtendedList GetExtendedAttributes(int file);
/// The attributes of the entry at `path` itself, even if it is a link.
[[nodiscard]] VYR_PLATFORM_API ExtendedList GetExtendedAttributes(const NativePath& path);
/// Leaves out attributes that the user may not set, or that the file system cannot keep.
/// @return 0, or the error code.
[[nodiscard]] VYR_PLATFORM_API int SetExtendedAttributes(int file, const ExtendedList& attributes);

/// Gives the new file `target` the metadata of `source`, whose state before it was read is `status`. Leaves out what
/// the user may not set and what the file system of `target` cannot keep.
/// @return 0, or the error code.
[[nodiscard]] int CopyMetadata(int source, int target, const struct stat& status);

} // namespace VyrPlatform
