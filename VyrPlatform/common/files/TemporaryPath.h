// Paths of temporary files that replace another file when complete.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrPlatform {

/// The folder of `path`, with the separator at its end; empty for a bare name.
[[nodiscard]] VYR_PLATFORM_API CString GetFolderOf(const CString& path);

/// A random path in the folder of `path`, which is almost certainly free.
[[nodiscard]] VYR_PLATFORM_API CString MakeTemporaryPath(const CString& path);

} // namespace VyrPlatform
