/// @file
/// From a preview to what the executor takes.
#pragma once

#include <VyrHost/model/Decision.h>
#include <VyrHost/model/EntryList.h>
#include <VyrHost/model/RenameList.h>

#include <cstdint>
#include <vector>

namespace VyrHost::Rename {

struct PlannedRenames
{
    Model::RenameList list;
    /// For each rename its entry.
    std::vector<std::uint32_t> entries;
};

/// What `decisions` rename, in the order of the list, and the folders that have to be made for it.
[[nodiscard]] PlannedRenames PlanOf(Model::EntryList& list, const std::vector<Model::Decision>& decisions);

} // namespace VyrHost::Rename
