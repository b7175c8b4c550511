/// @file
/// The look at the disk after a batch.
#pragma once

#include <VyrHost/batch/FileOperations.h>
#include <VyrHost/batch/PlanProgress.h>

#include <vector>

namespace VyrHost::Batch {

/// The entries location as `location` says that their folders do not list under exactly the names that they are to
/// have: one listing for each folder. In a folder that cannot be listed they are looked for one by one. Folders that
/// tell every two names apart are not looked at: they keep a name as it was given, or refuse it.
[[nodiscard]] std::vector<Model::PlanIndex> FindUnlisted(const Model::RenamePlan& plan, const PlanProgress& progress,
                                                         Location location, FileOperations& files);

} // namespace VyrHost::Batch
