// The system's way to start programs.
#pragma once

#include <VyrPlatform/process/Shell.h>

namespace VyrPlatform::Shell {

[[nodiscard]] std::uintptr_t StartBySystem(Window owner, const CString& path, const CString& arguments);

} // namespace VyrPlatform::Shell
