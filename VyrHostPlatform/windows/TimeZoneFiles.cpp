// The zones that are stored in the program.
#include <VyrHostPlatform/TimeZoneFiles.h>

#include <VyrHostPlatform/windows/TimeZoneTable.h>

namespace VyrHostPlatform {

std::string TimeZoneFile(std::string_view name)
{
    for (const StoredTimeZone& zone : StoredTimeZones())
        if (zone.name == name)
            return std::string(zone.file);
    return {};
}

std::vector<std::string> TimeZoneNames()
{
    std::vector<std::string> names;
    for (const StoredTimeZone& zone : StoredTimeZones())
        names.emplace_back(zone.name);
    return names;
}

} // namespace VyrHostPlatform
