// Waits for changes of a folder to reach the disk.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrPlatform {

/// Waits until the entries of the folder `path` are on the disk.
/// @return the system's error code, 0 for success.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t FlushFolder(const CString& path);

} // namespace VyrPlatform
