/// @file
/// The layout of help texts, and their examples. A test runs each of them.
#pragma once

#include <cstddef>
#include <string>

namespace VyrHost::Cli {

/// Where the descriptions of options begin.
inline constexpr int helpColumn = 26;

/// Breaks the lines of `help` that have more than 80 columns between words; what follows stands under the descriptions,
/// or at the margin where the line began there. Runs of empty lines become one.
[[nodiscard]] std::string WrapHelp(const std::string& help);

/// The first examples of `command`: a line for each, and one that says what it does.
[[nodiscard]] std::string ExamplesOf(const std::string& command, std::size_t most);

/// What stands below the options of `command`: `text`, its examples (a line for each, and one that says what it does)
/// and the exit codes.
[[nodiscard]] std::string HelpFooter(const std::string& command, const std::string& text = {});

} // namespace VyrHost::Cli
