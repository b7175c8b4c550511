/// @file
/// What stands at the old paths of a batch before it is begun.
#pragma once

#include <VyrHost/batch/FileOperations.h>
#include <VyrHost/model/RenamePlan.h>

#include <vector>

namespace VyrHost::Batch {

/// What stands where each entry of `plan` is to be taken from. Two threads look at one half each: of all that happens
/// before the first rename, waiting for the disk takes the longest.
[[nodiscard]] std::vector<VyrPlatform::FileState> LookAtSources(const Model::RenamePlan& plan, FileOperations& files);

} // namespace VyrHost::Batch
