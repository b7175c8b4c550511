/// @file
/// Removes the mark of a download from a file.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrPlatform::NamedStreams {

/// Removes the mark which tells that the file at `path` was downloaded, in every form that this system knows.
/// @return 0 when a mark was there and none is left, else the system's error code (also when there was none).
[[nodiscard]] VYR_PLATFORM_API std::uint32_t DeleteZoneMark(const CString& path);

} // namespace VyrPlatform::NamedStreams
