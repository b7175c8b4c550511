/// @file
/// Reads a whole file or pipe.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>
#include <string>

namespace VyrHostPlatform {

/// The whole content of a file, a pipe or a terminal; waits for the end of the last two. Other devices may never end
/// and are an error.
/// @param error  set to the system's error code where it cannot be opened or read to its end, else to 0.
/// @return nothing after an error.
[[nodiscard]] std::optional<std::string> ReadToEnd(const CString& path, std::uint32_t& error);

} // namespace VyrHostPlatform
