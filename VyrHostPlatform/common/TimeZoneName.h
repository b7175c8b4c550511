// The form of time zone names.
#pragma once

#include <algorithm>
#include <string_view>

namespace VyrHostPlatform {

/// Whether `name` may be a zone, and not another file in the same folder. Such a name cannot lead out of that folder.
inline bool MayBeTimeZone(std::string_view name)
{
    const auto isCapital = [](char unit) {
        return unit >= 'A' && unit <= 'Z';
    };
    const auto mayOccur = [isCapital](char unit) {
        return isCapital(unit) || (unit >= 'a' && unit <= 'z') || (unit >= '0' && unit <= '9') ||
               std::string_view("/_+-").find(unit) != std::string_view::npos;
    };
    return !name.empty() && isCapital(name.front()) && std::all_of(name.begin(), name.end(), mayOccur);
}

} // namespace VyrHostPlatform
