/// @file
/// What the program tells the one who called it. docs/exit-codes.md and --help say the same.
#pragma once

namespace VyrHost::ExitCode {

/// Everything that was asked for was done, or can be.
inline constexpr int Success = 0;
/// Some entries were refused or failed, or a folder could not be read; the rest was done, or can be.
inline constexpr int Partly = 1;
/// The call itself is wrong; nothing was done.
inline constexpr int Usage = 2;
/// The result could not be written (a full disk, a closed pipe).
inline constexpr int Output = 3;

} // namespace VyrHost::ExitCode
