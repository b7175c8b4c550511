// Where a file is made before it takes the place of another.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrPlatform {

/// The folder in which `path` stands, with the separator at its end; empty for a bare name.
[[nodiscard]] VYR_PLATFORM_API CString GetFolderOf(const CString& path);

/// A path in the folder of `path` that nothing has yet, as far as chance can tell.
[[nodiscard]] VYR_PLATFORM_API CString MakeTemporaryPath(const CString& path);

} // namespace VyrPlatform
