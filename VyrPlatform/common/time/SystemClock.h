/// @file
/// The system's own clock.
#pragma once

#include <VyrPlatform/time/COleDateTime.h>

namespace VyrPlatform::Clock {

/// The local date and time without fractions of a second.
[[nodiscard]] COleDateTime SystemNow();

} // namespace VyrPlatform::Clock
