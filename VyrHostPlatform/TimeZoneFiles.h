/// @file
/// The files of the world's time zones: on Linux the installed ones, on Windows those of the machine that built the
/// program, since Windows has other names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace VyrHostPlatform {

/// The bytes of the file of the zone `name` ("Europe/Berlin"), in the form TZif of RFC 9636; empty where there is none.
[[nodiscard]] std::string TimeZoneFile(std::string_view name);

/// The names of all zones, in no particular order.
[[nodiscard]] std::vector<std::string> TimeZoneNames();

} // namespace VyrHostPlatform
