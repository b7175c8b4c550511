/// @file
/// The note with the version of a Linux program, as cmake/VyrVersionInfo.cmake writes it.
#pragma once

#include <VyrPlatform/process/Process.h>

#include <optional>

namespace VyrPlatform::Process {

/// The note of the program itself (not of a library that it has loaded); nothing when it has none.
[[nodiscard]] std::optional<ProgramVersion> ReadVersionNote();

} // namespace VyrPlatform::Process
