/// @file
/// A batch of renames as ordered steps: what the planner makes, the journal keeps and the executor performs.
#pragma once

#include <VyrHost/model/FolderSet.h>
#include <VyrHost/model/NamePool.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <vector>

namespace VyrHost::Model {

/// The place in one of a plan's lists; `none` where there is nothing to point to.
using PlanIndex = std::uint32_t;
constexpr PlanIndex none = std::numeric_limits<PlanIndex>::max();

/// A name in a folder of the plan.
struct Place
{
    PlanIndex folder = none;
    InternedName name;

    friend bool operator==(const Place&, const Place&) noexcept = default;
};

/// A folder that the batch works in, or that stands above one.
///
/// Folders are kept as a tree, not as paths, since the batch may rename them: a place in a folder stays the same place
/// whatever the folder is called meanwhile.
struct PlanFolder
{
    /// Where the folder stands before the batch. A root has no parent, and its path, which ends in a separator, as its
    /// name. Every parent stands before its folders in the list.
    Place place;
    /// The batch makes it.
    bool isNew = false;
    /// The entry that renames it.
    PlanIndex entry = none;
};

/// One rename.
struct PlanEntry
{
    VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::File;
    Place from;
    Place to;
    /// Where the entry is a folder of the plan: its place among the folders.
    PlanIndex folder = none;
    /// The entry that stands at `to` before the batch: this one waits until that has left. Its own index where the file
    /// system takes the old and the new name for one (a change of case).
    PlanIndex waitsFor = none;
};

struct PlanStep
{
    enum class Action : std::uint8_t
    {
        /// Makes the folder `subject`.
        MakeFolder,
        /// Gives the entry `subject` a temporary name in the folder where it stands, so that others can have its place.
        UseTemporaryName,
        /// Gives the entry `subject` its new name.
        Rename
    };
    Action action = Action::Rename;
    PlanIndex subject = none;

    friend bool operator==(const PlanStep&, const PlanStep&) noexcept = default;
};

struct RenamePlan
{
    std::vector<PlanFolder> folders;
    /// In the order of the list.
    std::vector<PlanEntry> entries;
    /// In the order in which they are done; undoing is the reverse order. Each entry has one Rename, and before it a
    /// UseTemporaryName where its place is needed earlier. The steps from a UseTemporaryName to its Rename belong
    /// together: no step outside depends on a part of them.
    std::vector<PlanStep> steps;
    /// Holds the names.
    std::shared_ptr<NamePool> texts = std::make_shared<NamePool>();
};

/// Takes those folders of a set that a plan needs into the plan. Both must outlive it.
class PlannedFolders
{
public:
    PlannedFolders(const FolderSet& folders, RenamePlan& plan)
        : m_folders(folders), m_plan(plan), m_indexes(folders.Count(), none)
    {}

    /// The place in the plan of the folder `number` of the set, which is added with those that it stands in.
    PlanIndex Add(std::uint32_t number);
    /// The numbers in the set of the plan's folders.
    [[nodiscard]] const std::vector<std::uint32_t>& Numbers() const { return m_numbers; }

private:
    const FolderSet& m_folders;
    RenamePlan& m_plan;
    /// For each folder of the set its place in the plan.
    std::vector<PlanIndex> m_indexes;
    std::vector<std::uint32_t> m_numbers;
};

/// Where the folder `folder` stands before the batch, as a path.
[[nodiscard]] CString PathBefore(const RenamePlan& plan, PlanIndex folder);

/// The folders in an order in which each comes after those that it stands in before the batch and after it. It is
/// shorter than the list of folders when some would end up inside themselves.
[[nodiscard]] std::vector<PlanIndex> OrderFolders(const RenamePlan& plan);

/// What is wrong with `plan`, for people; empty when it keeps every promise that RenamePlan.h makes: its indexes are in
/// range, its names are single parts of a path, its steps are complete and no folder ends up inside itself.
[[nodiscard]] CString FindPlanFault(const RenamePlan& plan);

/// Whether `place` is in a folder of `plan` that is there before the batch, and its name a single part of a path.
[[nodiscard]] bool IsPlaceSound(const RenamePlan& plan, const Place& place);

} // namespace VyrHost::Model
