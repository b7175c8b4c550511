/// @file
/// The order in which the renames of a plan can be done.
#pragma once

#include <VyrHost/model/RenamePlan.h>

#include <vector>

namespace VyrHost::Rename {

/// The steps of `plan`, whose folders and entries are complete and whose new folders each have a place of their own.
/// @param standingAt for each folder that the plan makes the entry that stands at its place before the batch; `none`
///     for the others.
[[nodiscard]] std::vector<Model::PlanStep> OrderSteps(const Model::RenamePlan& plan,
                                                      const std::vector<Model::PlanIndex>& standingAt);

} // namespace VyrHost::Rename
