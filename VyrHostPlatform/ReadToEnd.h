/// @file
/// Reading what a user names, once, from its beginning to its end.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>
#include <string>

namespace VyrHostPlatform {

/// All that a file holds, or that comes through a pipe or is typed at a terminal: it waits for those to end. Other
/// devices, which may never end, are an error.
/// @param error  set to the system's error code where it cannot be opened or read to its end, else to 0.
/// @return nothing after an error.
[[nodiscard]] std::optional<std::string> ReadToEnd(const CString& path, std::uint32_t& error);

} // namespace VyrHostPlatform
