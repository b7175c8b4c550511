/// @file
/// The layout of help texts.
#pragma once

#include <string>

namespace VyrHost::Cli {

/// Where the descriptions of options begin.
inline constexpr int HelpColumn = 26;

/// Breaks the lines of `help` that have more than 80 columns between words; what goes on stands under the descriptions,
/// or at the margin where the line began there. Runs of empty lines become one.
[[nodiscard]] std::string WrapHelp(const std::string& help);

} // namespace VyrHost::Cli
