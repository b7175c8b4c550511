/// @file
/// Performs the steps of a plan, or undoes them, and never loses a file.
#pragma once

#include <VyrHost/batch/FileOperations.h>
#include <VyrHost/batch/PlanProgress.h>
#include <VyrHost/model/Result.h>

#include <cstddef>
#include <functional>
#include <unordered_map>
#include <vector>

namespace VyrHost::Batch {

/// The reason why an entry cannot be moved to its old or new path (`target`): something else is there.
[[nodiscard]] const char16_t* ReasonWhereTaken(Location target);

class Executor
{
public:
    using Report = std::function<void(Model::PlanIndex entry, const Model::Outcome& result)>;
    using StopRequest = std::function<bool()>;

    /// Starts from `progress`, which must match the disk, and keeps it up to date.
    Executor(const Model::RenamePlan& plan, PlanProgress& progress, FileOperations& files);

    /// Leaves `entry` where it is, whatever the direction.
    void LeaveAlone(Model::PlanIndex entry) { m_isLeftAlone[entry] = true; }
    /// Sets the result of an entry that was not found.
    void SetResult(Model::PlanIndex entry, const Model::Outcome& result) { m_results.insert_or_assign(entry, result); }

    /// Does every step that is not done yet in `direction`; backward in reverse order. Overwrites nothing. A failure
    /// affects only what depends on it: entries that need its place are refused, and a cycle that cannot be completed
    /// is rolled back.
    /// @param report called once for each entry.
    /// @param isStopAsked called before each rename, and each cycle of renames, that is left to do.
    /// @return false when it was stopped.
    bool Run(Direction direction, const Report& report, const StopRequest& isStopAsked);

private:
    /// Steps that are done or undone together: their first, and the one after their last.
    struct Group
    {
        Model::PlanIndex first;
        Model::PlanIndex end;
    };
    enum class StepResult : std::uint8_t
    {
        /// There was nothing to do.
        Skipped,
        Done,
        Failed
    };

    void FindGroups();
    /// The group at `index`, counted in `direction`.
    [[nodiscard]] const Group& GroupAt(std::size_t index, Direction direction) const
    {
        return m_groups[direction == Direction::Forward ? index : m_groups.size() - 1 - index];
    }
    [[nodiscard]] bool IsToDo(const Model::PlanStep& step, Direction direction) const;
    [[nodiscard]] bool HasWork(const Group& group, Direction direction) const;
    void RunGroup(const Group& group, Direction direction);
    void RollBack(const std::vector<Model::PlanStep>& done, Direction direction);
    void ReportGroup(const Group& group, Direction direction, const Report& report);
    template <class Use>
    void ForEachStep(const Group& group, Direction direction, Use use);

    StepResult Perform(const Model::PlanStep& step, Direction direction);
    StepResult PerformOnFolder(Model::PlanIndex folder, Direction direction);
    StepResult MakeFolder(Model::PlanIndex folder, const OpenedFolder& parent, std::u16string_view name);
    StepResult RemoveFolder(Model::PlanIndex folder, const OpenedFolder& parent, std::u16string_view name);
    StepResult Move(Model::PlanIndex entry, Location source, Location target);
    void RemoveFoldersWithoutUse();

    [[nodiscard]] std::pair<Location, Location> EndsOf(const Model::PlanStep& step, Direction direction) const;
    [[nodiscard]] bool IsLastStep(const Model::PlanStep& step, Direction direction) const;
    [[nodiscard]] Model::PlanIndex FindInTheWay(Model::PlanIndex entry, Location target) const;
    StepResult Refuse(Model::PlanIndex entry, const CString& reason);
    StepResult Fail(Model::PlanIndex entry, std::uint32_t error, Location target);
    [[nodiscard]] Model::Outcome ResultOf(Model::PlanIndex entry, Direction direction) const;

    const Model::RenamePlan& m_plan;
    PlanProgress& m_progress;
    FolderCache m_folders;
    std::vector<Group> m_groups;
    /// For each entry, whether it gets a temporary name.
    std::vector<bool> m_hasTemporaryName;
    std::vector<bool> m_isLeftAlone;
    /// For each entry, the one that gets its old place.
    std::vector<Model::PlanIndex> m_successors;
    /// Why entries did not reach their places; only for entries that were tried.
    std::unordered_map<Model::PlanIndex, Model::Outcome> m_results;
    /// For each new folder, why it was not made.
    std::vector<std::uint32_t> m_folderErrors;
};

} // namespace VyrHost::Batch
