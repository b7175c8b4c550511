// Paths of temporary files that replace another file when complete.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrPlatform {

/// The folder of `path`, with the separator at its end; empty for a bare name.
[[nodiscard]] VYR_PLATFORM_API CString GetFolderOf(const CString& path);

/// A random path in the folder of `path`, which is almost certainly free.
[[nodiscard]] VYR_PLATFORM_API CString MakeTemporaryPath(const CString& path);

/// The path in the folder of `path` that the name of `path` alone determines, so that a file which a killed program
/// left there is found again.
[[nodiscard]] VYR_PLATFORM_API CString GetTemporaryPathOf(const CString& path);

} // namespace VyrPlatform
