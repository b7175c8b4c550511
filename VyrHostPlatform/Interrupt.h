/// @file
/// The user's wish to end a long work (Ctrl-C), or the end of the terminal.
#pragma once

namespace VyrHostPlatform::Interrupt {

/// From now on an interrupt is noted instead of ending the program; a second one ends it.
void Catch();
/// Whether an interrupt was noted.
[[nodiscard]] bool WasAsked() noexcept;

} // namespace VyrHostPlatform::Interrupt
