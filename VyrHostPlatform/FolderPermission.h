/// @file
/// Whether the system lets the user change the names in a folder.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrHostPlatform {

/// Whether the user may change the names in a folder, found out without changing anything.
struct FolderPermission
{
    /// 0 when names may be added and removed, else the error code that the system would give: no write permission, a
    /// read-only file system, a folder that is immutable or takes new names only.
    std::uint32_t error = 0;
    /// Whether only the user's own entries may be renamed: the folder is sticky (as /tmp is) and another user's.
    bool ownEntriesOnly = false;
};

/// The permission for the folder at `path`; the error code of a missing folder where there is none.
[[nodiscard]] FolderPermission GetFolderPermission(const CString& path);

/// Whether the user owns what is at `path` (a link itself). True on Windows, which has no sticky folders.
[[nodiscard]] bool IsOwnEntry(const CString& path);

} // namespace VyrHostPlatform
