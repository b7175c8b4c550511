/// @file
/// The decision about each entry of a list, and the plan for it.
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
    /// Number it if the rules allow that, else refuse it.
    Number,
    /// Leave it alone.
    Skip,
    /// Refuse it.
    Refuse
};

struct ConflictSettings
{
    OnConflict mode = OnConflict::Number;
    /// Its pattern must have a "?", its position must be 0 or 1, and its step not 0; otherwise the search for a free
    /// name might not end.
    VyrLibraryFuncs::NameFuncs::CONFLICTITEM numbering;
    /// The minimum number of digits, 0 to 255.
    int digits = 0;
};

/// Called now and then with the number of named entries.
using NamingProgress = std::function<void(std::size_t named)>;

struct Preview
{
    /// One for each entry of the list.
    std::vector<Decision> decisions;
    Causes causes;
    /// The plan for the entries to be renamed.
    Model::RenamePlan plan;
    /// For each entry of the plan, its index in the list, ascending.
    std::vector<std::uint32_t> entries;
};

/// Decides about each entry of `list`, and plans the result. Reads only the listings in `list` and those of destination
/// folders.
///
/// Conflicts are those after the batch: an entry's own name and names that the batch vacates are free, names given to
/// earlier entries are taken. A refused entry keeps its name, and an entry that was to get that name is decided again.
/// Either all entries of a group get their names, with one number if needed, or none.
[[nodiscard]] Preview MakePreview(Model::EntryList& list, const Groups& groups, NameSource& names,
                                  const ConflictSettings& settings, const Model::StayReason& stays = {},
                                  const NamingProgress& progress = {});

/// Refuses all entries if a wanted name is taken.
/// @return whether one is taken.
bool StopAtConflict(Preview& preview);

} // namespace VyrHost::Rename
