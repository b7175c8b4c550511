/// @file
/// Tells a picture that says nothing from one that cannot be read.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrHost::Rename {

/// Why the file at `path` cannot be read (the system's code): no permission, a bad sector at its beginning. 0 where it
/// can be read, and for folders, pipes and devices, which are no pictures.
[[nodiscard]] std::uint32_t PictureReadError(const CString& path);

} // namespace VyrHost::Rename
