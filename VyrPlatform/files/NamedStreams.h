/// @file
/// The named streams of a file: the mark of a download.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrPlatform::NamedStreams {

/// Removes the mark that tells that the file at `path` was downloaded, in every form in which this system keeps it.
/// @return 0 when a mark was there and none is left, else the system's error code (also when there was none).
[[nodiscard]] VYR_PLATFORM_API std::uint32_t DeleteZoneMark(const CString& path);

} // namespace VyrPlatform::NamedStreams
