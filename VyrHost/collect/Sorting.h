/// @file
/// The order of a list.
#pragma once

#include <VyrHost/model/EntryList.h>

#include <cstdint>

namespace VyrHost::Collect {

enum class SortKey : std::uint8_t
{
    /// As the entries were named.
    Given,
    /// Natural order: 2 before 10.
    Name,
    /// The last-write time.
    Modified,
    /// When the picture was taken; what is no dated picture comes last, in either direction.
    Taken,
    Size
};

struct SortSettings
{
    SortKey key = SortKey::Given;
    bool isDescending = false;
};

/// Sorts `list`; what is alike under the key is in natural order of the names. Asks the system once for each entry
/// where the key needs it.
void Sort(Model::EntryList& list, SortSettings settings);

} // namespace VyrHost::Collect
