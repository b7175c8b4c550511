// Performs the steps of a plan, group by group.
#include <VyrHost/batch/Executor.h>

#include <VyrHost/text/Errors.h>

#include <VyrHostPlatform/RenameFile.h>

#include <algorithm>
#include <utility>

namespace VyrHost::Batch {

namespace {

using Action = Model::PlanStep::Action;

Direction Opposite(Direction direction)
{
    return direction == Direction::Forward ? Direction::Backward : Direction::Forward;
}

} // namespace

const char16_t* ReasonWhereTaken(Location target)
{
    return target == Location::Before ? u"something else is at the old path" : u"something else is at the new path";
}

Executor::Executor(const Model::RenamePlan& plan, PlanProgress& progress, FileOperations& files)
    : m_plan(plan), m_progress(progress), m_folders(progress, files), m_hasTemporaryName(plan.entries.size()),
      m_isLeftAlone(plan.entries.size()), m_successors(plan.entries.size(), Model::none),
      m_folderErrors(plan.folders.size())
{
    for (Model::PlanIndex entry = 0; entry < plan.entries.size(); ++entry)
        if (plan.entries[entry].waitsFor != Model::none)
            m_successors[plan.entries[entry].waitsFor] = entry;
    FindGroups();
}

void Executor::FindGroups()
{
    std::size_t open = 0;
    m_groups.reserve(m_plan.steps.size());
    for (Model::PlanIndex step = 0; step < m_plan.steps.size(); ++step) {
        const auto [action, subject] = m_plan.steps[step];
        if (open == 0)
            m_groups.push_back({step, step});
        if (action == Action::UseTemporaryName) {
            m_hasTemporaryName[subject] = true;
            ++open;
        } else if (action == Action::Rename && m_hasTemporaryName[subject]) {
            --open;
        }
        m_groups.back().end = step + 1;
    }
}

bool Executor::Run(Direction direction, const Report& report, const StopRequest& isStopAsked)
{
    bool isStopped = false;
    for (std::size_t index = 0; index < m_groups.size(); ++index) {
        const Group& group = GroupAt(index, direction);
        if (!isStopped && HasWork(group, direction)) {
            isStopped = isStopAsked();
            if (!isStopped)
                RunGroup(group, direction);
        }
        ReportGroup(group, direction, report);
    }
    if (direction == Direction::Forward)
        RemoveFoldersWithoutUse();
    return !isStopped;
}

bool Executor::HasWork(const Group& group, Direction direction) const
{
    return std::any_of(m_plan.steps.begin() + static_cast<std::ptrdiff_t>(group.first),
                       m_plan.steps.begin() + static_cast<std::ptrdiff_t>(group.end),
                       [this, direction](const Model::PlanStep& step) { return IsToDo(step, direction); });
}

bool Executor::IsToDo(const Model::PlanStep& step, Direction direction) const
{
    if (step.action != Action::MakeFolder)
        return !m_isLeftAlone[step.subject] && m_progress.Of(step.subject) == EndsOf(step, direction).first;
    return direction == Direction::Forward ? !m_progress.IsThere(step.subject)
                                           : m_progress.OfFolder(step.subject) == NewFolder::Made;
}

template <class Use>
void Executor::ForEachStep(const Group& group, Direction direction, Use use)
{
    for (std::size_t index = group.first; index < group.end; ++index)
        use(m_plan.steps[direction == Direction::Forward ? index : group.end - 1 - (index - group.first)]);
}

void Executor::RunGroup(const Group& group, Direction direction)
{
    if (group.end - group.first == 1) {
        Perform(m_plan.steps[group.first], direction);
        return;
    }
    std::vector<Model::PlanStep> done;
    bool hasFailed = false;
    ForEachStep(group, direction, [&](const Model::PlanStep& step) {
        const StepResult result = hasFailed ? StepResult::Skipped : Perform(step, direction);
        if (result == StepResult::Done)
            done.push_back(step);
        hasFailed |= result == StepResult::Failed;
    });
    if (!hasFailed)
        return;
    RollBack(done, direction);
    ForEachStep(group, direction, [this](const Model::PlanStep& step) {
        if (step.action != Action::MakeFolder)
            Refuse(step.subject, u"a rename that it depends on failed");
    });
}

void Executor::RollBack(const std::vector<Model::PlanStep>& done, Direction direction)
{
    for (auto step = done.rbegin(); step != done.rend(); ++step)
        Perform(*step, Opposite(direction));
}

void Executor::ReportGroup(const Group& group, Direction direction, const Report& report)
{
    ForEachStep(group, direction, [&](const Model::PlanStep& step) {
        if (IsLastStep(step, direction))
            report(step.subject, ResultOf(step.subject, direction));
    });
}

/// The locations between which a step moves its entry.
std::pair<Location, Location> Executor::EndsOf(const Model::PlanStep& step, Direction direction) const
{
    const Location middle = m_hasTemporaryName[step.subject] ? Location::Temporary : Location::Before;
    std::pair<Location, Location> ends{middle, Location::After};
    if (step.action == Action::UseTemporaryName)
        ends = {Location::Before, Location::Temporary};
    if (direction == Direction::Backward)
        std::swap(ends.first, ends.second);
    return ends;
}

bool Executor::IsLastStep(const Model::PlanStep& step, Direction direction) const
{
    if (step.action == Action::MakeFolder)
        return false;
    const Action last = direction == Direction::Backward && m_hasTemporaryName[step.subject] ? Action::UseTemporaryName
                                                                                             : Action::Rename;
    return step.action == last;
}

Executor::StepResult Executor::Perform(const Model::PlanStep& step, Direction direction)
{
    if (!IsToDo(step, direction))
        return StepResult::Skipped;
    if (step.action == Action::MakeFolder)
        return PerformOnFolder(step.subject, direction);
    const auto [source, target] = EndsOf(step, direction);
    const Model::PlanIndex inTheWay = FindInTheWay(step.subject, target);
    if (inTheWay != Model::none)
        return Refuse(step.subject,
                      CString::Join({u"the path is still taken: ",
                                     m_progress.PathOf(m_progress.PlaceOf(inTheWay, m_progress.Of(inTheWay))),
                                     u" could not be renamed"}));
    const Model::PlanIndex folder = m_plan.entries[step.subject].to.folder;
    if (target == Location::After && !m_progress.IsThere(folder))
        return Refuse(step.subject,
                      CString::Join({u"its folder could not be made: ", Text::ErrorText(m_folderErrors[folder])}));
    return Move(step.subject, source, target);
}

/// The entry of the plan that still occupies the place that `entry` is to get.
Model::PlanIndex Executor::FindInTheWay(Model::PlanIndex entry, Location target) const
{
    const Model::PlanIndex before = m_plan.entries[entry].waitsFor;
    const Model::PlanIndex after = m_successors[entry];
    if (target == Location::After && before != Model::none && before != entry &&
        m_progress.Of(before) == Location::Before)
        return before;
    if (target == Location::Before && after != Model::none && after != entry && m_progress.Of(after) == Location::After)
        return after;
    return Model::none;
}

Executor::StepResult Executor::Move(Model::PlanIndex entry, Location source, Location target)
{
    const Model::Place from = m_progress.PlaceOf(entry, source);
    const Model::Place to = m_progress.PlaceOf(entry, target);
    const OpenedFolder fromFolder = m_folders.Open(from.folder);
    const OpenedFolder toFolder = fromFolder.folder ? m_folders.Open(to.folder) : fromFolder;
    if (!toFolder.folder)
        return Fail(entry, toFolder.error, target);
    const std::uint32_t error = fromFolder.folder->Rename(from.name, *toFolder.folder, to.name);
    if (error)
        return Fail(entry, error, target);
    // Closes the open folders below it while its old place is still known.
    if (m_plan.entries[entry].folder != Model::none)
        m_folders.Forget(m_plan.entries[entry].folder);
    m_progress.Set(entry, target);
    return StepResult::Done;
}

Executor::StepResult Executor::PerformOnFolder(Model::PlanIndex folder, Direction direction)
{
    const Model::Place& place = m_plan.folders[folder].place;
    const bool isParentThere = m_progress.IsThere(place.folder);
    const OpenedFolder parent =
        isParentThere ? m_folders.Open(place.folder) : OpenedFolder{nullptr, m_folderErrors[place.folder]};
    if (!parent.folder) {
        m_folderErrors[folder] = parent.error;
        return StepResult::Failed;
    }
    return direction == Direction::Forward ? MakeFolder(folder, parent, place.name)
                                           : RemoveFolder(folder, parent, place.name);
}

Executor::StepResult Executor::MakeFolder(Model::PlanIndex folder, const OpenedFolder& parent, std::u16string_view name)
{
    const std::uint32_t error = parent.folder->MakeFolder(name);
    NewFolder state = NewFolder::Made;
    if (error) {
        if (parent.folder->Look(name).kind != VyrPlatform::FileSystem::Kind::Folder) {
            m_folderErrors[folder] = error;
            return StepResult::Failed;
        }
        state = NewFolder::Found;
    }
    m_progress.SetFolder(folder, state);
    return StepResult::Done;
}

Executor::StepResult Executor::RemoveFolder(Model::PlanIndex folder, const OpenedFolder& parent,
                                            std::u16string_view name)
{
    m_folders.Forget(folder);
    // A folder that contains anything else is kept.
    if (parent.folder->RemoveEmptyFolder(name) != 0)
        return StepResult::Skipped;
    m_progress.SetFolder(folder, NewFolder::Absent);
    return StepResult::Done;
}

/// Removes new folders that got no entry.
void Executor::RemoveFoldersWithoutUse()
{
    std::vector<bool> isUsed(m_plan.folders.size());
    for (Model::PlanIndex entry = 0; entry < m_plan.entries.size(); ++entry)
        if (m_progress.Of(entry) == Location::After)
            isUsed[m_plan.entries[entry].to.folder] = true;
    for (auto folder = static_cast<Model::PlanIndex>(m_plan.folders.size()); folder-- > 0;) {
        const Model::PlanIndex parent = m_plan.folders[folder].place.folder;
        if (m_progress.OfFolder(folder) == NewFolder::Made && !isUsed[folder])
            PerformOnFolder(folder, Direction::Backward);
        if (m_progress.OfFolder(folder) == NewFolder::Made && parent != Model::none)
            isUsed[parent] = true;
    }
}

Executor::StepResult Executor::Refuse(Model::PlanIndex entry, const CString& reason)
{
    Model::Outcome& result = m_results[entry];
    if (result.status == Model::Status::NotReached)
        result = {.status = Model::Status::Refused, .error = 0, .reason = reason};
    return StepResult::Failed;
}

Executor::StepResult Executor::Fail(Model::PlanIndex entry, std::uint32_t error, Location target)
{
    if (VyrHostPlatform::IsOtherFileSystem(error))
        return Refuse(entry, u"the new path is on another file system");
    const bool isTaken = VyrHostPlatform::IsTargetTaken(error);
    m_results[entry] = {.status = Model::Status::Failed,
                        .error = error,
                        .reason = isTaken ? CString(ReasonWhereTaken(target)) : Text::ErrorText(error)};
    return StepResult::Failed;
}

Model::Outcome Executor::ResultOf(Model::PlanIndex entry, Direction direction) const
{
    const Location goal = direction == Direction::Forward ? Location::After : Location::Before;
    const Location location = m_progress.Of(entry);
    if (location == goal)
        return {.status = Model::Status::Done, .error = 0, .reason = {}};
    const auto found = m_results.find(entry);
    Model::Outcome result = found == m_results.end() ? Model::Outcome() : found->second;
    if (location == Location::Temporary) {
        result.status = Model::Status::Failed;
        const CString path = m_progress.PathOf(m_progress.PlaceOf(entry, Location::Temporary));
        result.reason = Model::ReasonAndCause(CString::Join({u"it has a temporary name now, ", path}), result.reason);
    }
    return result;
}

} // namespace VyrHost::Batch
