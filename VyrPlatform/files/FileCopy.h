/// @file
/// Copying and moving a file, and the removal of an empty folder.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrPlatform::FileCopy {

/// Copies the file `source` to `destination`, in the place of a file that stands there.
///
/// The copy has the content (holes stay holes on Linux), the mode or attributes, the modification time and the extended
/// attributes or streams; on Linux also the owner, as far as the user may give files away. What the destination's file
/// system cannot keep of them is left out. On Linux a symbolic link is copied as a link.
///
/// It fails, and nothing has changed, when `source` is anything else (a folder, a pipe, a device: it never waits for
/// one), when a folder or a read-only file stands at `destination`, when both are one file, and when the system fails:
/// a file that stands at `destination` is replaced only once its copy is whole.
/// @return 0 when it was copied, else the system's error code.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t Copy(const CString& source, const CString& destination);

/// Moves the file `source` (a link itself, not what it leads to) to `destination`, in the place of a file that stands
/// there; to another volume by copying, as Copy does it, and removing it once the copy is on the disk.
///
/// It fails as Copy does. A file moved onto itself stays as it is.
/// @return 0 when it was moved, else the system's error code; `source` still stands then.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t Move(const CString& source, const CString& destination);

/// Removes the folder `path`, which must be empty.
/// @return 0 when it was removed, else the system's error code.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t RemoveEmptyFolder(const CString& path);

} // namespace VyrPlatform::FileCopy
