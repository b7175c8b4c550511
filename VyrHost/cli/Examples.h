/// @file
/// The examples of the help text. A test runs each of them.
#pragma once

#include <string>

namespace VyrHost::Cli {

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
