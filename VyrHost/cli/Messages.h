/// @file
/// What the program says on the error stream.
#pragma once

#include <VyrHost/apply/Batches.h>

#include <string>

namespace VyrHost {

/// Writes "vyr: " and `what` (UTF-8, safe to show) as a line.
void Complain(const std::string& what);

/// That a batch was cut off, and what ends it.
[[nodiscard]] std::string CutOffNotice(const BatchInformation& batch);

} // namespace VyrHost
