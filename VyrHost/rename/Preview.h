/// @file
/// What becomes of each entry of a list, and the plan that brings it about.
#pragma once

#include <VyrHost/model/EntryList.h>
#include <VyrHost/model/RenamePlan.h>
#include <VyrHost/rename/Decision.h>
#include <VyrHost/rename/Groups.h>
#include <VyrHost/rename/NameSources.h>
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

/// Tells of an entry, by its folder's path (a separator at its end), name and kind, why it has to stay as it is called,
/// whatever the rules say; gives an empty text for all others.
using StayReason =
    std::function<std::u16string_view(const CString& folder, std::u16string_view name, VyrPlatform::FileSystem::Kind)>;

/// Told now and then how many entries have their names.
using NamingProgress = std::function<void(std::size_t named)>;

struct Preview
{
    /// One for each entry of the list.
    std::vector<Decision> decisions;
    Causes causes;
    /// What is to be done for them.
    Model::RenamePlan plan;
    /// For each entry of the plan its place in the list, rising.
    std::vector<std::uint32_t> entries;
};

/// Decides for each entry of `list`, and plans what is decided. Only the listings that `list` brings are asked what
/// stands on the disk, and those of the folders that entries move into.
///
/// Names are judged as they are after the batch: an entry's own name and the names that the batch vacates are free, the
/// names given to earlier entries are taken. An entry that is refused keeps its name, and whoever was to get that name
/// is decided anew. Of entries that keep together either all get their names, with one number where one is needed, or
/// none does.
[[nodiscard]] Preview MakePreview(Model::EntryList& list, const Groups& groups, NameSource& names,
                                  const ConflictSettings& settings, const StayReason& stays = {},
                                  const NamingProgress& progress = {});

/// Where a name that was to be given is taken, nothing is to be renamed at all.
/// @return whether one is.
bool StopAtConflict(Preview& preview);

} // namespace VyrHost::Rename
