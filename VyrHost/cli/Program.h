/// @file
/// The program vyr, from its arguments to its exit code.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <vector>

namespace VyrHost::Cli {

/// Runs the command in `arguments` (without the program's name).
/// @return the exit code.
[[nodiscard]] int RunProgram(const std::vector<CString>& arguments);

} // namespace VyrHost::Cli
