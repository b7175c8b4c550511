/// @file
/// Checks on the disk before a batch and after it.
#pragma once

#include <VyrHost/batch/FileOperations.h>
#include <VyrHost/batch/PlanProgress.h>
#include <VyrHost/model/RenamePlan.h>

#include <vector>

namespace VyrHost::Batch {

/// The state of each entry of `plan` at its old path. Two threads query one half each: before the first rename, waiting
/// for the disk takes the most time.
[[nodiscard]] std::vector<VyrPlatform::FileState> LookAtSources(const Model::RenamePlan& plan, FileOperations& files);

/// The entries at `location` that their folders do not list under exactly the expected names. Each folder is listed
/// once; in a folder that cannot be listed, each entry is queried. Folders that compare names exactly are skipped: they
/// store a name as given, or refuse it.
[[nodiscard]] std::vector<Model::PlanIndex> FindUnlisted(const Model::RenamePlan& plan, const PlanProgress& progress,
                                                         Location location, FileOperations& files);

} // namespace VyrHost::Batch
