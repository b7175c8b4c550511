/// @file
/// The kinds of change that this program knows besides the rename.
#pragma once

#include <VyrHost/batch/Change.h>

namespace VyrHost::Metadata {

/// Times, attributes and marks.
[[nodiscard]] Batch::ChangeKinds Kinds();

} // namespace VyrHost::Metadata
