// The number of application objects of the process.
#pragma once

#include <VyrPlatform/Export.h>

namespace VyrPlatform {

struct ApplicationCounts
{
    /// Objects that exist.
    int alive = 0;
    /// Calls of InitInstance so far.
    int initialised = 0;
};

/// Exported only for the test of loading and unloading.
[[nodiscard]] VYR_PLATFORM_API ApplicationCounts CountApplications() noexcept;

} // namespace VyrPlatform
