/// @file
/// The kinds of change that this program knows besides the rename.
#pragma once

#include <VyrHost/model/Change.h>

namespace VyrHost::Metadata {

/// Times, attributes and marks.
[[nodiscard]] Model::ChangeKinds Kinds();

} // namespace VyrHost::Metadata
