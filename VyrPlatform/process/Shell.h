/// @file
/// Starts programs as the user's shell does.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <functional>

struct HWND__; // NOLINT(bugprone-reserved-identifier): the system's own tag

namespace VyrPlatform::Shell {

/// A window of the system; a null pointer for none.
using Window = HWND__*;

/// Starts the program at `path` without waiting for its end, in a window of its usual size.
/// @param owner the window to which messages of the system belong. Linux has none and does not read it.
/// @param path full; a name alone is not searched for.
/// @param arguments separated by blanks; double quotes make one argument of several words. On Windows the program
/// itself splits them.
/// @return more than 32 when it was started, else an error number: 2 is a missing file, 3 a missing folder and 5 a file
/// that may not be run.
[[nodiscard]] VYR_PLATFORM_API std::uintptr_t Start(Window owner, const CString& path, const CString& arguments);

using Starter = std::function<std::uintptr_t(Window owner, const CString& path, const CString& arguments)>;

/// Makes Start call `starter` instead of the system; an empty function ends that. For tests, and for hosts that start
/// programs in their own way.
VYR_PLATFORM_API void SetStarter(Starter starter);

} // namespace VyrPlatform::Shell
