/// @file
/// The user interrupts the program (Ctrl-C), or the terminal is closed.
#pragma once

namespace VyrHostPlatform::Interrupt {

/// From now on the first interrupt is noted and does not end the program; the second one ends it.
void Catch();
/// Whether an interrupt was noted.
[[nodiscard]] bool WasAsked() noexcept;

} // namespace VyrHostPlatform::Interrupt
