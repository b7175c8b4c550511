/// @file
/// The system's own clock.
#pragma once

#include <VyrPlatform/time/COleDateTime.h>

namespace VyrPlatform::Clock {

/// The local date and time, fractions of a second dropped.
[[nodiscard]] COleDateTime SystemNow();

} // namespace VyrPlatform::Clock
