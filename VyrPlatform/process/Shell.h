/// @file
/// Starting programs as the user's shell does.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <functional>

struct HWND__; // NOLINT(bugprone-reserved-identifier): the system's own tag

namespace VyrPlatform::Shell {

/// A window of the system; a null pointer is none.
using Window = HWND__*;

/// Starts the program at `path` without waiting for its end, in a window of its usual size.
/// @param owner the window to which messages of the system belong. Linux has none and does not read it.
/// @param path full; a mere name is not looked for.
/// @param arguments separated by blanks; those in double quotes count as one. On Windows the program itself takes them
///     apart.
/// @return more than 32 when it was started, else a number of what went wrong, of which 2 is a missing file, 3 a
///     missing folder and 5 a file that may not be run.
[[nodiscard]] VYR_PLATFORM_API std::uintptr_t Start(Window owner, const CString& path, const CString& arguments);

using Starter = std::function<std::uintptr_t(Window owner, const CString& path, const CString& arguments)>;

/// Makes Start ask `starter` instead of the system; an empty one ends that. For tests, and for hosts that start
/// programs in their own way.
VYR_PLATFORM_API void SetStarter(Starter starter);

} // namespace VyrPlatform::Shell
