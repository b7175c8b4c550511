/// @file
/// Whether a plan that comes from elsewhere can be worked with.
#pragma once

#include <VyrHost/model/RenamePlan.h>

namespace VyrHost::Model {

/// What is wrong with `plan`, for people; empty when it keeps every promise that RenamePlan.h makes: its indexes are in
/// range, its names are single parts of a path, its steps are complete and no folder ends up inside itself.
[[nodiscard]] CString FindPlanFault(const RenamePlan& plan);

/// Whether `place` is in a folder of `plan` that is there before the batch, and its name a single part of a path.
[[nodiscard]] bool IsPlaceSound(const RenamePlan& plan, const Place& place);

} // namespace VyrHost::Model
