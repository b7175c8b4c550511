/// @file
/// From a preview to what the executor takes.
#pragma once

#include <VyrHost/RenameList.h>
#include <VyrHost/entries/EntryList.h>
#include <VyrHost/preview/Decision.h>

#include <cstdint>
#include <vector>

namespace VyrHost {

struct PlannedRenames
{
    RenameList list;
    /// For each rename its entry.
    std::vector<std::uint32_t> entries;
};

/// What `decisions` rename, in the order of the list, and the folders that have to be made for it.
[[nodiscard]] PlannedRenames PlanOf(EntryList& list, const std::vector<Decision>& decisions);

} // namespace VyrHost
