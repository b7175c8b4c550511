/// @file
/// The line at the end of a preview.
#pragma once

#include <VyrHost/preview/Tally.h>

#include <string>

namespace VyrHost {

/// Such as "5 entries: 3 renamed, 1 unchanged, 1 refused." with a line end.
[[nodiscard]] std::string SummaryOf(const Tally& tally);

} // namespace VyrHost
