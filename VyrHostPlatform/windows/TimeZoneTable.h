// The table that cmake/TimeZoneTable.cmake makes of the time zones of the machine that builds the program.
#pragma once

#include <span>
#include <string_view>

namespace VyrHostPlatform {

struct StoredTimeZone
{
    std::string_view name;
    /// Bytes of a file TZif.
    std::string_view file;
};

[[nodiscard]] std::span<const StoredTimeZone> StoredTimeZones();

} // namespace VyrHostPlatform
