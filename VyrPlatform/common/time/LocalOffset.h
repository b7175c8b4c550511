// The offset of local time from UTC.
#pragma once

#include <cstdint>
#include <optional>

namespace VyrPlatform {

/// The number of seconds that local time is ahead of UTC at `unixSeconds` (since 1970, UTC); nothing when the system
/// cannot tell.
[[nodiscard]] std::optional<int> GetLocalOffset(std::int64_t unixSeconds);

/// Makes GetLocalOffset read the system's time zone again.
void ReadTimeZone();

} // namespace VyrPlatform
