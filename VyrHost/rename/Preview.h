/// @file
/// Decides what becomes of each entry of a list.
#pragma once

#include <VyrHost/model/Decision.h>
#include <VyrHost/model/EntryList.h>
#include <VyrHost/rename/Groups.h>
#include <VyrHost/rename/NameSource.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <cstdint>
#include <functional>
#include <vector>

namespace VyrHost::Rename {

/// What to do with an entry whose new name is taken.
enum class OnConflict : std::uint8_t
{
    /// Number it where the rules allow that, else refuse it.
    Number,
    /// Leave it alone.
    Skip,
    /// Refuse it.
    Refuse
};

struct ConflictSettings
{
    OnConflict mode = OnConflict::Number;
    /// Its pattern has a "?", its position is 0 or 1 and its step is not 0: else no free name might be found.
    VyrLibraryFuncs::NameFuncs::CONFLICTITEM numbering;
    /// The least number of digits, 0 to 255.
    int digits = 0;
};

/// Told now and then how many entries have their names.
using NamingProgress = std::function<void(std::size_t named)>;
/// Told of each entry that wants another name as soon as it does; another entry may still keep it from that.
using WishReport = std::function<void(std::uint32_t entry)>;

/// One decision for each entry of `list`, in its order. Only the listings that `list` brings are asked what stands on
/// the disk, and those of the folders that entries move into.
///
/// Names are judged as they are after the batch: an entry's own name and the names that the batch vacates are free, the
/// names given to earlier entries are taken. An entry that is refused keeps its name, and whoever was to get that name
/// is decided anew. Of entries that keep together either all get their names, with one number where one is needed, or
/// none does.
[[nodiscard]] std::vector<Model::Decision> Decide(Model::EntryList& list, const Groups& groups, NameSource& names,
                                                  const ConflictSettings& settings, const NamingProgress& progress = {},
                                                  const WishReport& onWish = {});

} // namespace VyrHost::Rename
