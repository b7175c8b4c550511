// Locates, applies and undoes the changes of a batch.
#include <VyrHost/batch/BatchWork.h>

#include <VyrHost/model/SlotTable.h>
#include <VyrHost/model/TwoThreads.h>
#include <VyrHost/text/Errors.h>
#include <VyrPlatform/files/ExactState.h>
#include <VyrPlatform/files/FileAttributes.h>

#include <algorithm>
#include <span>
#include <utility>

namespace VyrHost::Batch {

namespace {

namespace ExactState = VyrPlatform::ExactState;
using Model::Outcome;
using Model::Status;

Model::ChangeState GoalOf(Direction direction)
{
    return direction == Direction::Forward ? Model::ChangeState::After : Model::ChangeState::Before;
}

Outcome Failure(std::uint32_t error)
{
    return {.status = Status::Failed, .error = error, .reason = Text::ErrorText(error)};
}

} // namespace

ChangeWork::ChangeWork(const Journal& journal, const PlanProgress& progress)
    : m_journal(journal), m_progress(progress), m_looks(journal.changes.size(), {Model::ChangeState::Before, 0}),
      m_isKept(journal.changes.size()), m_renames(journal.changes.size(), Model::none)
{
    if (journal.changes.empty())
        return;
    Model::SlotTable<Model::PlanIndex> renames;
    for (Model::PlanIndex entry = 0; entry < journal.plan.entries.size(); ++entry)
        renames.Put(journal.plan.entries[entry].from, entry);
    for (std::size_t index = 0; index < journal.changes.size(); ++index)
        if (const auto rename = renames.Find(journal.changes[index].place))
            m_renames[index] = *rename;
}

void ChangeWork::TrustCheckpoint()
{
    if (m_journal.checkpoint)
        for (const Model::PlanIndex index : m_journal.checkpoint->changesBefore)
            m_isKept[index] = true;
}

std::vector<ProtectedFile> ChangeWork::FindProtected() const
{
    std::vector<ProtectedFile> files;
    for (std::size_t index = 0; index < m_looks.size(); ++index) {
        if (m_isKept[index] || !m_journal.changes[index].change->MayLiftProtection())
            continue;
        const CString path = PathOf(index);
        if (!VyrPlatform::FileAttributes::IsReadOnly(path))
            continue;
        std::uint32_t error = 0;
        if (const auto state = ExactState::Read(path, ExactState::Part::Attributes, error))
            files.push_back({static_cast<Model::PlanIndex>(index), *state});
    }
    return files;
}

/// Makes files read-only again that interrupted work has left writable. A file that cannot be restored stays as it is.
void ChangeWork::ProtectAgain() const
{
    for (const ProtectedFile& file : m_journal.protectedFiles) {
        const CString path = PathOf(file.change);
        if (!VyrPlatform::FileAttributes::IsReadOnly(path))
            static_cast<void>(ExactState::Restore(path, ExactState::Part::Attributes, file.state));
    }
}

void ChangeWork::Locate(bool repairs)
{
    if (repairs)
        ProtectAgain();
    for (std::size_t index = 0; index < m_looks.size(); ++index) {
        if (m_isKept[index])
            continue;
        const CString path = PathOf(index);
        if (repairs)
            m_journal.changes[index].change->Repair(path);
        m_looks[index] = m_journal.changes[index].change->Look(path);
    }
}

bool ChangeWork::IsAnyFound() const
{
    for (std::size_t index = 0; index < m_looks.size(); ++index)
        if (!m_isKept[index] && m_looks[index].state != Model::ChangeState::Unknown)
            return true;
    return false;
}

/// The changes that Run is about, in its order.
std::vector<std::size_t> ChangeWork::FindToDo(Direction direction, bool followRenames) const
{
    std::vector<std::size_t> toDo;
    for (std::size_t index = 0; index < m_looks.size(); ++index)
        if (!m_isKept[index] && m_journal.changes[index].change->FollowsRenames() == followRenames)
            toDo.push_back(index);
    if (direction == Direction::Backward)
        std::reverse(toDo.begin(), toDo.end());
    return toDo;
}

/// Whether each change is of a file of its own, so that their order makes no difference. Names may be links to one
/// file.
bool ChangeWork::AreOfDifferentFiles() const
{
    std::vector<std::pair<std::uint64_t, std::uint64_t>> files;
    files.reserve(m_journal.changes.size());
    for (const PlannedChange& planned : m_journal.changes) {
        const auto file = planned.change->OnlyFile();
        if (!file)
            return false;
        files.emplace_back(file->device, file->number);
    }
    std::sort(files.begin(), files.end());
    return std::adjacent_find(files.begin(), files.end()) == files.end();
}

bool ChangeWork::Run(Direction direction, bool followRenames, const Report& report,
                     const Executor::StopRequest& isStopAsked)
{
    const std::vector<std::size_t> toDo = FindToDo(direction, followRenames);
    const std::size_t together = direction == Direction::Forward && AreOfDifferentFiles() ? 1024 : 1;
    std::vector<Outcome> outcomes;
    bool isStopped = false;
    for (std::span<const std::size_t> rest = toDo; !rest.empty();) {
        const auto group = rest.first(std::min(together, rest.size()));
        rest = rest.subspan(group.size());
        outcomes.assign(group.size(), Outcome());
        isStopped = isStopped || isStopAsked();
        if (!isStopped)
            Model::OnTwoThreads(0, group.size(), [&](std::size_t at, std::size_t end) {
                for (; at < end; ++at)
                    outcomes[at] = Perform(group[at], direction);
            });
        for (std::size_t at = 0; at < group.size(); ++at)
            report(group[at], outcomes[at]);
    }
    return !isStopped;
}

Outcome ChangeWork::Perform(std::size_t index, Direction direction)
{
    const Model::Change& change = *m_journal.changes[index].change;
    const CString path = PathOf(index);
    m_looks[index] = change.Look(path);
    Outcome predicted = Predict(index, direction);
    if (predicted.status != Status::Done || m_looks[index].state == GoalOf(direction))
        return predicted;
    const std::uint32_t error = direction == Direction::Forward ? change.Apply(path) : change.Undo(path);
    m_looks[index] = error ? change.Look(path) : Model::ChangeLook{GoalOf(direction), 0};
    return error ? Failure(error) : predicted;
}

Outcome ChangeWork::Predict(std::size_t index, Direction direction) const
{
    const Model::ChangeLook& look = m_looks[index];
    if (look.state == Model::ChangeState::Unknown)
        return Failure(look.error);
    if (look.state == Model::ChangeState::Other)
        return {.status = Status::Refused,
                .error = 0,
                .reason = direction == Direction::Forward ? noLongerAsListed : u"another program has changed it since"};
    return {.status = Status::Done, .error = 0, .reason = direction == Direction::Backward ? look.left : u""};
}

bool ChangeWork::IsDone(std::size_t index) const
{
    return !m_isKept[index] &&
           (m_looks[index].state == Model::ChangeState::After || m_looks[index].state == Model::ChangeState::Partly);
}

bool ChangeWork::MayBeDone(std::size_t index, Direction direction) const
{
    const bool isUnclear =
        m_looks[index].state == Model::ChangeState::Other || m_looks[index].state == Model::ChangeState::Unknown;
    return IsDone(index) || (!m_isKept[index] && isUnclear && direction == Direction::Backward);
}

bool ChangeWork::IsAnyDone() const
{
    for (std::size_t index = 0; index < m_looks.size(); ++index)
        if (IsDone(index))
            return true;
    return false;
}

CString ChangeWork::PathOf(std::size_t index) const
{
    const Model::PlanIndex entry = m_renames[index];
    if (entry == Model::none || m_progress.Of(entry) == Location::Unknown)
        return m_progress.PathOf(m_journal.changes[index].place);
    return m_progress.PathOf(m_progress.PlaceOf(entry, m_progress.Of(entry)));
}

} // namespace VyrHost::Batch
