/// @file
/// The looks at the disk before a batch and after it.
#pragma once

#include <VyrHost/batch/FileOperations.h>
#include <VyrHost/batch/PlanProgress.h>
#include <VyrHost/model/RenamePlan.h>

#include <vector>

namespace VyrHost::Batch {

/// What stands where each entry of `plan` is to be taken from. Two threads look at one half each: of all that happens
/// before the first rename, waiting for the disk takes the longest.
[[nodiscard]] std::vector<VyrPlatform::FileState> LookAtSources(const Model::RenamePlan& plan, FileOperations& files);

/// The entries that stand as `location` says, but that their folders do not list under exactly the names that they
/// should have: one listing for each folder. In a folder that cannot be listed they are looked for one by one. Folders
/// that tell every two names apart are not looked at: they keep a name as it was given, or refuse it.
[[nodiscard]] std::vector<Model::PlanIndex> FindUnlisted(const Model::RenamePlan& plan, const PlanProgress& progress,
                                                         Location location, FileOperations& files);

} // namespace VyrHost::Batch
