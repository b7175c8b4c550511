// For tests: interrupts as in a program that somebody starts at a terminal.
#pragma once

namespace VyrTests {

/// Undoes that this program was started with interrupts ignored, as by nohup or as a shell's background job: the
/// programs that it starts would ignore them, too.
void StopIgnoringInterrupts();

} // namespace VyrTests
