/// @file
/// A call of "vyr rename": the request, and its execution.
#pragma once

#include <VyrHost/cli/BatchRun.h>
#include <VyrHost/cli/ReportOptions.h>
#include <VyrHost/collect/CollectEntries.h>
#include <VyrHost/collect/Sorting.h>
#include <VyrHost/rename/NameSources.h>
#include <VyrHost/rename/Preview.h>
#include <VyrHost/rename/Rule.h>

#include <optional>

namespace VyrHost::Cli {

struct RenameRequest
{
    Rename::Rules rules;
    Collect::SourceSettings sources;
    /// The file with pairs of old and new names, instead of rules and sources; "-" is the standard input.
    std::optional<CString> pairs;
    Collect::SortSettings order;
    Rename::Counting counting = Rename::Counting::WholeList;
    bool together = false;
    /// The folder that all entries move into, as the user named it.
    std::optional<CString> into;
    /// The folders that the batch empties are removed.
    bool removesEmpty = false;
    /// With OnConflict::Refuse, any taken name stops the whole call.
    Rename::ConflictSettings conflicts;
    /// The user edits the new names.
    bool edit = false;
    ReportStyle style = {};
    /// The page to write, if requested.
    const ReportOptions* page = nullptr;
};

/// Carries out `request` and writes the results.
/// @return the program's exit code.
/// @throws UsageError
[[nodiscard]] int RunRename(const RenameRequest& request);

} // namespace VyrHost::Cli
