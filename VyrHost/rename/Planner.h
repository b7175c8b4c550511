/// @file
/// Plans renames in a tree of folders as ordered steps.
#pragma once

#include <VyrHost/model/RenamePlan.h>
#include <VyrHost/rename/Decision.h>
#include <VyrHostPlatform/NameFolding.h>

#include <cstdint>
#include <vector>

namespace VyrHost::Rename {

/// The wanted renames.
///
/// Entries are different, and each has a new place. Nothing that the batch leaves in place is at a new place. An entry
/// inside a folder that is itself renamed refers to that folder before the batch, in `from` and in `to`.
struct RenameDraft
{
    /// Its folders, and `kind`, `from` and `to` of its entries.
    Model::RenamePlan plan;
    /// For each folder, how it compares names.
    std::vector<VyrHostPlatform::NameFolding> foldings;
    /// For each entry, the number of its group: either all entries of a group get their new names, or none. Empty if
    /// each entry is a group of its own.
    std::vector<std::uint32_t> groups;
};

struct PlanRefusal
{
    /// Its index in the draft.
    Model::PlanIndex entry = 0;
    Reason reason = Reason::None;
};

struct PlannerResult
{
    Model::RenamePlan plan;
    /// For each entry of the plan, its index in the draft, ascending.
    std::vector<Model::PlanIndex> entries;
    /// The entries that cannot be planned, and those that depend on them, in the order of the draft.
    std::vector<PlanRefusal> refused;
};

/// Plans `draft` without reading the disk.
///
/// Chains (a to b, b to c) are done from their free end; cycles (a to b, b to a) through one temporary name, like
/// changes between names that are equal for the file system. A folder and its content may be renamed together.
///
/// Refuses an entry whose new place another entry or a new folder gets; a folder that would end up inside itself;
/// entries that need the place of a refused one, and the others of its group. Takes almost linear time.
[[nodiscard]] PlannerResult PlanRenames(RenameDraft draft);

/// The steps of `plan`, whose folders and entries are complete and whose new folders have different places.
/// @param standingAt for each new folder, the entry at its place before the batch; `none` for others.
[[nodiscard]] std::vector<Model::PlanStep> OrderSteps(const Model::RenamePlan& plan,
                                                      const std::vector<Model::PlanIndex>& standingAt);

} // namespace VyrHost::Rename
