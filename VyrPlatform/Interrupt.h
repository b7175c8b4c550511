/// @file
/// The user's wish to end a long work (Ctrl-C), or the end of the terminal.
#pragma once

#include <VyrPlatform/Export.h>

namespace VyrPlatform::Interrupt {

/// From now on an interrupt is noted instead of ending the program; a second one ends it.
VYR_PLATFORM_API void Catch();
/// Whether an interrupt was noted.
[[nodiscard]] VYR_PLATFORM_API bool WasAsked() noexcept;

} // namespace VyrPlatform::Interrupt
