/// @file
/// What a call of "vyr rename" asks for.
#pragma once

#include <VyrHost/entries/Gather.h>
#include <VyrHost/entries/Sorting.h>
#include <VyrHost/preview/Preview.h>
#include <VyrHost/preview/RuleNames.h>
#include <VyrHost/rules/Rule.h>

#include <optional>

namespace VyrHost {

struct RenameRequest
{
    Rules rules;
    SourceSettings sources;
    /// The file with pairs of old and new names, instead of rules and sources; "-" is the standard input.
    std::optional<CString> pairs;
    SortSettings order;
    Counting counting = Counting::WholeList;
    bool together = false;
    /// With OnConflict::Refuse any name that is taken stops the whole.
    ConflictSettings conflicts;
    /// The user looks through the new names in an editor.
    bool edit = false;
    bool apply = false;
    bool json = false;
    bool quiet = false;
};

/// Carries `request` out and writes what became of it.
/// @return the program's exit code.
/// @throws UsageError
[[nodiscard]] int RunRename(RenameRequest& request);

} // namespace VyrHost
