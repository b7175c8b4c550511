/// @file
/// The layout of help texts, and their examples. A test runs each of them.
#pragma once

#include <string>

namespace VyrHost::Cli {

/// Where the descriptions of options begin.
inline constexpr int helpColumn = 26;

/// Breaks the lines of `help` that have more than 80 columns between words; what goes on stands under the descriptions,
/// or at the margin where the line began there. Runs of empty lines become one.
[[nodiscard]] std::string WrapHelp(const std::string& help);

/// For the help of "vyr rename": a line for each example and one that says what it does.
[[nodiscard]] std::string RenameExamples();
/// Likewise for "vyr list" and the commands that change files in place.
[[nodiscard]] std::string ListExamples();
[[nodiscard]] std::string TimesExamples();
[[nodiscard]] std::string AttributesExamples();
[[nodiscard]] std::string UnblockExamples();
/// Likewise for "vyr copy" and "vyr move".
[[nodiscard]] std::string CopyExamples();
[[nodiscard]] std::string MoveExamples();
/// Likewise for "vyr undo" and "vyr recover".
[[nodiscard]] std::string UndoExamples();
[[nodiscard]] std::string RecoverExamples();
/// Likewise for "vyr programs" and "vyr browsers".
[[nodiscard]] std::string ProgramsExamples();
[[nodiscard]] std::string BrowsersExamples();

} // namespace VyrHost::Cli
