// The extended attributes in which Windows file systems and Samba keep what Linux itself has not.
#pragma once

#include "NativePath.h"

#include <VyrPlatform/FileTimes.h>

#include <cstdint>
#include <optional>

namespace VyrPlatform::ExtendedAttributes {

/// The attributes (FILE_ATTRIBUTE_... bits) of the file at `path`; nothing where none are kept.
[[nodiscard]] std::optional<std::uint32_t> GetAttributes(const NativePath& path);

/// The creation time that Samba keeps of the file at `path`; nothing where it keeps none.
[[nodiscard]] std::optional<FileTicks> GetSambaCreated(const NativePath& path);
/// The creation time that an NTFS driver tells of the file at `path`; nothing on other file systems.
[[nodiscard]] std::optional<FileTicks> GetNtfsCreated(const NativePath& path);

} // namespace VyrPlatform::ExtendedAttributes
