/// @file
/// The current local time.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <optional>

namespace VyrPlatform::Clock {

/// The current local date and time; fractions of a second are dropped.
[[nodiscard]] VYR_PLATFORM_API COleDateTime Now();

/// Makes Now return `moment`; without one Now returns the real time again. For tests, while no other thread calls Now.
VYR_PLATFORM_API void SetNow(std::optional<COleDateTime> moment);

} // namespace VyrPlatform::Clock
