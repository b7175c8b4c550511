/// @file
/// A batch of renames as ordered steps: made by the planner, stored by the journal, performed by the executor.
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

/// An index in one of a plan's lists; `none` for no item.
using PlanIndex = std::uint32_t;
constexpr PlanIndex none = std::numeric_limits<PlanIndex>::max();

/// A name in a folder of the plan.
struct Place
{
    PlanIndex folder = none;
    InternedName name;

    friend bool operator==(const Place&, const Place&) noexcept = default;
};

/// A folder that the batch works in, or a parent of one.
///
/// Folders are a tree, not paths, since the batch may rename them: a place in a folder stays the same when the folder
/// is renamed.
struct PlanFolder
{
    /// Where the folder is before the batch. A root has no parent, and its path, which ends in a separator, as its
    /// name. Every parent is before its folders in the list.
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
    /// If the entry is a folder of the plan: its index among the folders.
    PlanIndex folder = none;
    /// The entry that is at `to` before the batch and has to leave it first. Its own index if the old and the new name
    /// are equal for the file system (a change of case).
    PlanIndex waitsFor = none;
};

struct PlanStep
{
    enum class Action : std::uint8_t
    {
        /// Makes the folder `subject`.
        MakeFolder,
        /// Gives the entry `subject` a temporary name in its folder, so that others can have its place.
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

/// Adds the folders of a set that a plan needs to the plan. Both must outlive it.
class PlannedFolders
{
public:
    PlannedFolders(const FolderSet& folders, RenamePlan& plan)
        : m_folders(folders), m_plan(plan), m_indexes(folders.Count(), none)
    {}

    /// Adds the folder `number` of the set with its parents, and returns its index in the plan.
    PlanIndex Add(std::uint32_t number);
    /// The numbers of the plan's folders in the set.
    [[nodiscard]] const std::vector<std::uint32_t>& Numbers() const { return m_numbers; }

private:
    const FolderSet& m_folders;
    RenamePlan& m_plan;
    /// For each folder of the set, its index in the plan.
    std::vector<PlanIndex> m_indexes;
    std::vector<std::uint32_t> m_numbers;
};

/// The path of the folder `folder` before the batch.
[[nodiscard]] CString PathBefore(const RenamePlan& plan, PlanIndex folder);

/// The folders in an order in which each comes after its parents, both those before the batch and those after it.
/// Shorter than the list of folders when some would end up inside themselves.
[[nodiscard]] std::vector<PlanIndex> OrderFolders(const RenamePlan& plan);

/// The fault of `plan`, for people; empty for a valid one: its indexes are in range, its names are single parts of a
/// path, its steps are complete and no folder ends up inside itself.
[[nodiscard]] CString FindPlanFault(const RenamePlan& plan);

/// Whether `place` is in a folder of `plan` that exists before the batch, and its name is a single part of a path.
[[nodiscard]] bool IsPlaceSound(const RenamePlan& plan, const Place& place);

} // namespace VyrHost::Model
