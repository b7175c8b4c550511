/// @file
/// The attributes of a file.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrPlatform::FileAttributes {

/// Whether the file's read-only attribute is set. On Linux: whether its owner may not write it, or an attribute kept by
/// a Windows file system or Samba says so. False when nothing stands at `path`.
[[nodiscard]] VYR_PLATFORM_API bool IsReadOnly(const CString& path);

} // namespace VyrPlatform::FileAttributes
