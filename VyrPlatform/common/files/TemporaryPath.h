// Names a file that is written before it replaces another.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrPlatform {

/// The folder in which `path` stands, with the separator at its end; empty for a bare name.
[[nodiscard]] VYR_PLATFORM_API CString GetFolderOf(const CString& path);

/// A random path in the folder of `path`, which almost certainly is free.
[[nodiscard]] VYR_PLATFORM_API CString MakeTemporaryPath(const CString& path);

} // namespace VyrPlatform
