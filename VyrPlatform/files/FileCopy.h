/// @file
/// Copies and moves a file, gives a folder the permissions of another one, and removes an empty folder.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrPlatform::FileCopy {

/// Copies the file `source` to `destination` and replaces an existing file.
///
/// The copy has the content (holes stay holes on Linux), the mode or attributes, the modification time and the extended
/// attributes or streams; on Linux also the owner, where the user may set it. What the destination's file system cannot
/// keep of these is left out. A link (on Windows also a junction) is copied as a link, where the system allows the user
/// to create one.
///
/// A file at `destination` is replaced once its copy is complete. Only where the file is writable but its folder is
/// not, it is overwritten in place: then a failure can leave it incomplete.
///
/// The copy fails, and nothing has changed, when `source` is not a file or link (a folder, a pipe, a device: it never
/// waits for one), when `destination` is a folder or a read-only file, and when both are the same file.
/// @return 0 when it was copied, else the system's error code.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t Copy(const CString& source, const CString& destination);

/// Moves the file `source` (a link itself, not its target) to `destination` and replaces an existing file. To another
/// volume, and into a folder without write permission, it copies with Copy and then removes `source`. Where
/// `destination` is another hard link of the same file, `source` is removed.
///
/// It fails as Copy does. A file that is moved to its own path is not changed.
/// @return 0 when it was moved, else the system's error code; `source` then still exists.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t Move(const CString& source, const CString& destination);

/// The owner's permissions for a folder.
enum class OwnerAccess : std::uint8_t
{
    AsInSource,
    /// Read, write and enter it, whatever the source allows. On Windows the same as AsInSource.
    Full
};

/// Gives the folder `destination` the permissions of the folder `source` (on Linux without the set-group-ID bit, unless
/// both have the same group); on Windows the attributes.
/// @return 0 when they were set, else the system's error code.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t CopyFolderMode(const CString& source, const CString& destination,
                                                            OwnerAccess access);

/// Removes the folder `path`, which must be empty.
/// @return 0 when it was removed, else the system's error code.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t RemoveEmptyFolder(const CString& path);

} // namespace VyrPlatform::FileCopy
