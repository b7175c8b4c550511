/// @file
/// From renames in a tree of folders to the steps that bring them about.
#pragma once

#include <VyrHost/model/RenamePlan.h>
#include <VyrHost/rename/Decision.h>
#include <VyrHostPlatform/NameFolding.h>

#include <cstdint>
#include <vector>

namespace VyrHost::Rename {

/// What is to be renamed.
///
/// No two entries are the same, and each has a new place. Nothing that the batch leaves in place stands where an entry
/// goes. An entry inside a folder that is itself renamed names that folder as it is before the batch, in `from` and in
/// `to`.
struct RenameDraft
{
    /// Its folders, and of its entries `kind`, `from` and `to`.
    Model::RenamePlan plan;
    /// For each folder how it compares names.
    std::vector<VyrHostPlatform::NameFolding> foldings;
    /// For each entry the number of its group: entries of one group all get their new names, or none does. Empty where
    /// each entry is a group of its own.
    std::vector<std::uint32_t> groups;
};

struct PlanRefusal
{
    /// In the draft.
    Model::PlanIndex entry = 0;
    Reason reason = Reason::None;
};

struct PlannerResult
{
    Model::RenamePlan plan;
    /// For each entry of the plan its index in the draft, rising.
    std::vector<Model::PlanIndex> entries;
    /// What cannot be planned, and what depends on it, in the order of the draft.
    std::vector<PlanRefusal> refused;
};

/// Plans `draft` without looking at the disk.
///
/// Chains (a to b, b to c) are done from their free end, cycles (a to b, b to a) through one temporary name, as are
/// changes that the file system takes for the same name. A folder and what stands in it may be renamed together.
///
/// Refused are: an entry whose new place another one gets, or a folder that is created; a folder that would end up
/// inside itself; whatever needs the place of a refused one; and the others of its group. Takes time in proportion to
/// the draft, nearly.
[[nodiscard]] PlannerResult PlanRenames(RenameDraft draft);

/// The steps of `plan`, whose folders and entries are complete and whose new folders each have a place of their own.
/// @param standingAt for each folder that the plan makes the entry that stands at its place before the batch; `none`
///     for the others.
[[nodiscard]] std::vector<Model::PlanStep> OrderSteps(const Model::RenamePlan& plan,
                                                      const std::vector<Model::PlanIndex>& standingAt);

} // namespace VyrHost::Rename
