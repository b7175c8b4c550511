// For tests: a program whose standard streams are a terminal.
#pragma once

#include <tests/support/ChildProcess.h>

#include <string>

namespace VyrTests {

/// Runs `call` on a terminal of `columns` columns, types its input there, and answers what the terminal showed as
/// output: what both streams wrote, and the echo of what was typed.
[[nodiscard]] ProgramResult RunOnTerminal(const ProgramCall& call, unsigned short columns);

} // namespace VyrTests
