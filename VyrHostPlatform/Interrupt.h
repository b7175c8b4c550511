/// @file
/// Handles interrupts: Ctrl-C, or closing the terminal.
#pragma once

namespace VyrHostPlatform::Interrupt {

/// From now on the first interrupt is only noted; the second one ends the program.
void Catch();
/// Whether an interrupt was noted.
[[nodiscard]] bool WasAsked() noexcept;

} // namespace VyrHostPlatform::Interrupt
