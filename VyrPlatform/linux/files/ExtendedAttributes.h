// The extended attributes in which Windows file systems and Samba keep what Linux itself has not.
#pragma once

#include "NativePath.h"

#include <VyrPlatform/files/FileTimes.h>

#include <cstdint>
#include <optional>

namespace VyrPlatform::ExtendedAttributes {

/// The attributes (FILE_ATTRIBUTE_... bits) of the file at `path`; nothing where none are kept.
[[nodiscard]] std::optional<std::uint32_t> GetAttributes(const NativePath& path);

/// The creation time that Samba keeps of the file at `path`; nothing where it keeps none.
[[nodiscard]] std::optional<FileTicks> GetSambaCreated(const NativePath& path);
/// The creation time that an NTFS driver tells of the file at `path`; nothing on other file systems.
[[nodiscard]] std::optional<FileTicks> GetNtfsCreated(const NativePath& path);

/// Sets the creation time as Samba keeps it; the other fields of its attribute stay.
/// @return 0, or the error code; EINVAL where the attribute holds what Samba does not write.
[[nodiscard]] int SetSambaCreated(const NativePath& path, FileTicks created);
/// Sets the creation time on the disk of an NTFS driver.
/// @return 0, or the error code: one on every other file system.
[[nodiscard]] int SetNtfsCreated(const NativePath& path, FileTicks created);

} // namespace VyrPlatform::ExtendedAttributes
