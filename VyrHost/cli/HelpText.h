/// @file
/// The layout of help texts.
#pragma once

#include <string>

namespace VyrHost::Cli {

/// Where the descriptions of options begin.
inline constexpr int HelpColumn = 32;

/// Breaks the lines of `help` that are too long between words; what goes on stands under the descriptions. Runs of
/// empty lines become one.
[[nodiscard]] std::string WrapHelp(const std::string& help);

} // namespace VyrHost::Cli
