// The distance of local time from UTC, as each system's folder tells it.
#pragma once

#include <cstdint>
#include <optional>

namespace VyrPlatform {

/// How many seconds local time is ahead of UTC at `unixSeconds` (since 1970, UTC); nothing when the system cannot tell.
[[nodiscard]] std::optional<int> GetLocalOffset(std::int64_t unixSeconds);

/// Makes GetLocalOffset read the system's time zone again.
void ReadTimeZone();

} // namespace VyrPlatform
