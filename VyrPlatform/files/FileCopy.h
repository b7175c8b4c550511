/// @file
/// Copies and moves a file, gives a folder the permissions of another one, and removes an empty folder.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrPlatform::FileCopy {

/// Copies the file `source` to `destination` and replaces a file that stands there.
///
/// The copy has the content (holes stay holes on Linux), the mode or attributes, the modification time and the extended
/// attributes or streams; on Linux also the owner, as far as the user may give files away. What the destination's file
/// system cannot keep of them is left out. A link (on Windows a junction too) is copied as a link, where the system
/// allows the user to make one.
///
/// A file at `destination` is replaced once its copy is whole. Only where its folder may not be written, but the file
/// may, is it overwritten in place: a failure can then leave it incomplete.
///
/// The copy fails, and nothing has changed, when `source` is anything else (a folder, a pipe, a device: it never waits
/// for one), when a folder or a read-only file stands at `destination`, and when both are one file.
/// @return 0 when it was copied, else the system's error code.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t Copy(const CString& source, const CString& destination);

/// Moves the file `source` (a link itself, not what it leads to) to `destination` and replaces a file that stands
/// there; to another volume, and into a folder that may not be written, by Copy, after which `source` is removed. Where
/// `destination` is another hard link of the same file, `source` is removed.
///
/// It fails as Copy does. A file that is moved onto itself stays as it is.
/// @return 0 when it was moved, else the system's error code; `source` still stands then.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t Move(const CString& source, const CString& destination);

/// What the owner may do with a folder.
enum class OwnerAccess : std::uint8_t
{
    AsInSource,
    /// Read, write and enter it, whatever the source says. On Windows the same as AsInSource.
    Full
};

/// Gives the folder `destination` the permissions of the folder `source` (on Linux without the bit that hands on the
/// group, unless both have the same group), on Windows the attributes.
/// @return 0 when it has them, else the system's error code.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t CopyFolderMode(const CString& source, const CString& destination,
                                                            OwnerAccess access);

/// Removes the folder `path`, which must be empty.
/// @return 0 when it was removed, else the system's error code.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t RemoveEmptyFolder(const CString& path);

} // namespace VyrPlatform::FileCopy
