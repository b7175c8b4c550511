/// @file
/// The look at the disk after a batch.
#pragma once

#include <VyrHost/apply/PlanProgress.h>
#include <VyrHost/files/FileOperations.h>

#include <vector>

namespace VyrHost {

/// The entries standing as `standing` says that their folders do not list under exactly the names that they are to
/// have: one listing for each folder. In a folder that cannot be listed they are looked for one by one. Folders that
/// tell every two names apart are not looked at: they keep a name as it was given, or refuse it.
[[nodiscard]] std::vector<PlanIndex> FindUnlisted(const RenamePlan& plan, const PlanProgress& progress,
                                                  Standing standing, FileOperations& files);

} // namespace VyrHost
