/// @file
/// What the program tells the one who called it. docs/vyr.1 says the same.
#pragma once

namespace VyrHost::Cli::ExitCode {

/// Everything that was asked for was done, or can be.
inline constexpr int Success = 0;
/// Some entries were refused or failed, or a folder could not be read; the rest was done, or can be.
inline constexpr int Partly = 1;
/// The call itself is wrong; nothing was done.
inline constexpr int Usage = 2;
/// The result could not be written (a full disk, a closed pipe).
inline constexpr int Output = 3;
/// Nothing was done: there is no batch to undo, a batch that was cut off is to be recovered first, another program is
/// at work on a batch, the journal cannot be kept, or update information is not known or cannot be read.
inline constexpr int Blocked = 4;
/// The work was ended by an interrupt (Ctrl-C).
inline constexpr int Interrupted = 130;

/// The same for the help texts.
inline constexpr const char* Table = "Exit codes:\n"
                                     "  0    all is done, or can be done\n"
                                     "  1    some entries were refused or failed, or a folder could not be read\n"
                                     "  2    the call is wrong; nothing was done\n"
                                     "  3    the result could not be written\n"
                                     "  4    nothing was done: there is nothing to undo, a batch that was cut off\n"
                                     "       waits for \"vyr recover\", another vyr is at work, the journal cannot be\n"
                                     "       kept, or update information cannot be read\n"
                                     "  130  interrupted (Ctrl-C); what was done was said\n";

} // namespace VyrHost::Cli::ExitCode
