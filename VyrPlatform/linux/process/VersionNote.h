/// @file
/// The note in which a Linux program carries its version, as cmake/VyrVersionInfo.cmake writes it.
#pragma once

#include <VyrPlatform/process/Process.h>

#include <optional>

namespace VyrPlatform::Process {

/// The note of the program itself (not of a library that it has loaded); nothing when it carries none.
[[nodiscard]] std::optional<ProgramVersion> ReadVersionNote();

} // namespace VyrPlatform::Process
