/// @file
/// Messages on the error stream, and exit codes.
#pragma once

#include <VyrHost/ui/Output.h>

#include <string>

namespace VyrHost::Cli {

/// The exit codes; docs/vyr.1 lists them, too.
namespace ExitCode {

/// Everything was done, or can be.
inline constexpr int success = 0;
/// Some entries were refused or failed, or a folder could not be read; the rest was done, or can be.
inline constexpr int partly = 1;
/// The call itself is wrong; nothing was done.
inline constexpr int usage = 2;
/// The output could not be written (a full disk, a closed pipe).
inline constexpr int output = 3;
/// Nothing was done: there is no batch to undo, a batch that was cut off is to be recovered first, another program is
/// at work on a batch, the journal cannot be kept, or update information is not known or cannot be read.
inline constexpr int blocked = 4;
/// An interrupt (Ctrl-C) ended the work.
inline constexpr int interrupted = 130;

/// The same for the help texts.
inline constexpr const char* table = "Exit codes:\n"
                                     "  0    all is done, or can be done\n"
                                     "  1    some entries were refused or failed, or a folder could not be read\n"
                                     "  2    the call is wrong; nothing was done\n"
                                     "  3    the result could not be written\n"
                                     "  4    nothing was done: there is nothing to undo, a batch that was cut off\n"
                                     "       waits for \"vyr recover\", another vyr is at work, the journal cannot be\n"
                                     "       kept, or update information cannot be read\n"
                                     "  130  interrupted (Ctrl-C); the output says what was done\n";

} // namespace ExitCode

/// Writes "vyr: " and `what` (UTF-8, safe to show) as a line.
void Complain(const std::string& what);

/// Writes the rest of `output`; complains if anything could not be written.
/// @return `code`, or ExitCode::output.
[[nodiscard]] int Finish(Ui::OutputBuffer& output, int code);

} // namespace VyrHost::Cli
