/// @file
/// The layout of help texts, and their examples. A test runs each of them.
#pragma once

#include <cstddef>
#include <string>

namespace VyrHost::Cli {

/// Where the descriptions of options begin.
inline constexpr int helpColumn = 26;

/// Wraps the lines of `help` with more than 80 columns. Continuation lines begin under the descriptions, or at the
/// margin if the line began there. Runs of empty lines become one.
[[nodiscard]] std::string WrapHelp(const std::string& help);

/// The first examples of `command`, each with a line that says what it does.
[[nodiscard]] std::string ExamplesOf(const std::string& command, std::size_t most);

/// The text below the options of `command`: `text`, its examples, each with a line that says what it does, and the exit
/// codes.
[[nodiscard]] std::string HelpFooter(const std::string& command, const std::string& text = {});

} // namespace VyrHost::Cli
