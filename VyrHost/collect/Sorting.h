/// @file
/// The order of a list.
#pragma once

#include <VyrHost/model/EntryList.h>

#include <cstdint>

namespace VyrHost::Collect {

enum class SortKey : std::uint8_t
{
    /// In the order in which the entries were named.
    Given,
    /// Natural order: 2 before 10.
    Name,
    /// The last-write time.
    Modified,
    /// The date when the picture was taken; files without one come last in both directions.
    Taken,
    Size
};

struct SortSettings
{
    SortKey key = SortKey::Given;
    bool isDescending = false;
};

/// Sorts `list`; entries with equal keys are in natural order of their names. Queries the system once for each entry
/// where the key needs it.
void Sort(Model::EntryList& list, SortSettings settings);

} // namespace VyrHost::Collect
