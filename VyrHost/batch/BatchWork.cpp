// Begins, locates, runs and closes a batch.
#include <VyrHost/batch/BatchWork.h>

#include <VyrHost/batch/DiskChecks.h>
#include <VyrHost/batch/KeptFiles.h>
#include <VyrHost/batch/Locator.h>
#include <VyrHost/model/Change.h>
#include <VyrHost/model/FolderSet.h>
#include <VyrHost/text/Errors.h>

#include <algorithm>
#include <set>
#include <utility>

namespace VyrHost::Batch {

namespace {

using VyrPlatform::FileState;
using VyrPlatform::FileSystem::Kind;

/// Whether there is now a file where a folder was listed, or the other way round.
bool IsOtherKind(Kind listed, Kind found)
{
    return (listed == Kind::File && found == Kind::Folder) || (listed == Kind::Folder && found == Kind::File);
}

void Count(BatchSummary& summary, Model::Status status)
{
    ++(status == Model::Status::Done      ? summary.done
       : status == Model::Status::Failed  ? summary.failed
       : status == Model::Status::Refused ? summary.refused
                                          : summary.notReached);
}

Model::Outcome NotFound(std::uint32_t error)
{
    const CString cause = error != 0 ? Text::ErrorText(error) : CString();
    return {.status = Model::Status::Failed,
            .error = error,
            .reason = Model::ReasonAndCause(u"it is at none of its paths", cause)};
}

} // namespace

BatchWork::BatchWork(FileOperations& files, JournalFolder& folder, Journal journal, BatchSummary& summary)
    : m_files(files), m_folder(folder), m_journal(std::move(journal)),
      m_progress(m_journal.plan, m_journal.heading.token), m_before(m_progress), m_after(m_progress),
      m_executor(m_journal.plan, m_progress, files), m_changes(m_journal, m_progress),
      m_isKept(m_journal.plan.entries.size()), m_hasChanged(m_journal.plan.entries.size()), m_summary(summary)
{
    for (Model::PlanIndex entry = 0; entry < m_journal.plan.entries.size(); ++entry)
        m_after.Set(entry, Location::After);
}

bool BatchWork::Begin()
{
    for (Model::PlanIndex entry = 0; entry < m_journal.plan.entries.size(); ++entry)
        CheckSource(entry);
    KeepJournalInPlace();
    const bool isBegun = MayGoOn(m_folder.Begin(m_journal, m_file));
    GiveKeptPlaces(m_journal, m_file);
    return isBegun;
}

void BatchWork::CheckSource(Model::PlanIndex entry)
{
    FileState& state = m_journal.states[entry];
    if (state.kind == Kind::Missing) {
        LeaveOut(entry,
                 {.status = Model::Status::Failed, .error = state.error, .reason = Text::ErrorText(state.error)});
    } else if (IsOtherKind(m_journal.plan.entries[entry].kind, state.kind)) {
        LeaveOut(entry, {.status = Model::Status::Refused, .error = 0, .reason = noLongerAsListed});
        state = {};
    }
}

void BatchWork::LeaveOut(Model::PlanIndex entry, const Model::Outcome& result)
{
    m_progress.Set(entry, Location::Unknown);
    m_executor.SetResult(entry, result);
}

/// Leaves alone an entry that was not renamed: it, and what is inside it, still has its old path.
void BatchWork::Keep(Model::PlanIndex entry)
{
    m_executor.LeaveAlone(entry);
    m_after.Set(entry, Location::Before);
}

/// The journals must not be moved: their batches would not be found again, and the lock would not keep others away.
void BatchWork::KeepJournalInPlace()
{
    for (Model::PlanIndex entry = 0; entry < m_journal.plan.entries.size(); ++entry) {
        const std::u16string_view reason =
            m_folder.ReasonToStay(m_journal.plan.entries[entry].from.name, m_journal.states[entry]);
        if (reason.empty())
            continue;
        m_executor.LeaveAlone(entry);
        m_executor.SetResult(entry, {.status = Model::Status::Refused, .error = 0, .reason = reason});
    }
}

bool BatchWork::MayGoOn(std::uint32_t journalError)
{
    if (journalError)
        m_summary.error = CString::Join(
            {u"the journal cannot be written, so that nothing was done: ", Text::ErrorText(journalError)});
    return journalError == 0;
}

bool BatchWork::Locate(const JournalFile& file, Direction direction, bool isPreview)
{
    m_file = file;
    GiveKeptPlaces(m_journal, m_file);
    const bool isRedo = IsEnded(file.phase) && direction == Direction::Forward;
    // A redo leaves out what the batch did not do when it was applied.
    if (isRedo && !m_journal.applied)
        m_journal.applied.emplace();
    if (isRedo)
        m_journal.checkpoint = m_journal.applied;
    const bool wasCutOff = !IsEnded(file.phase) || !m_journal.checkpoint;
    LastWork lastWork = wasCutOff ? LastWork::CutOff : LastWork::Applied;
    if (isRedo || (wasCutOff && isPreview))
        lastWork = LastWork::Undone;
    Locator locator(m_journal, m_progress, m_files);
    locator.TrustCheckpoint();
    locator.Locate(lastWork);
    m_changes.TrustCheckpoint();
    m_changes.Locate(wasCutOff && !isPreview);
    // Folders that could not be removed when it was undone.
    bool isAnyFound = (file.phase == BatchPhase::Undone && !isRedo && HasMadeFolder()) || m_changes.IsAnyFound();
    for (Model::PlanIndex entry = 0; entry < m_journal.plan.entries.size(); ++entry) {
        m_isKept[entry] = locator.IsKept(entry);
        m_hasChanged[entry] = locator.HasChanged(entry);
        if (m_isKept[entry])
            Keep(entry);
        else if (m_progress.Of(entry) == Location::Unknown)
            m_executor.SetResult(entry, m_notFound.emplace(entry, NotFound(locator.Error(entry))).first->second);
        else
            isAnyFound = true;
    }
    return isAnyFound;
}

/// Tells a recovery which files to protect again. Replaces what earlier work on the batch noted.
std::uint32_t BatchWork::NoteProtected()
{
    const std::vector<ProtectedFile> files = m_changes.FindProtected();
    if (files.empty() && m_journal.protectedFiles.empty())
        return 0;
    return m_folder.Append(m_file, WriteProtected(files, m_journal.check));
}

bool BatchWork::BeginRecovery()
{
    return MayGoOn(NoteProtected());
}

bool BatchWork::BeginUndo()
{
    // An undo that continues the last one keeps its number.
    const bool goesOn = m_journal.checkpoint && m_journal.checkpoint->isBackward;
    if (m_file.undo == 0 || !goesOn)
        m_file.undo = m_folder.NextNumber();
    std::uint32_t error = NoteProtected();
    if (!error)
        error = m_folder.SetPhase(m_file, BatchPhase::Undoing);
    return MayGoOn(error ? error : m_folder.Flush());
}

/// What the batch did when it was applied becomes the last checkpoint again: if the redo is cut off, or its end cannot
/// be written, the checkpoint of the undo would say that nothing was done.
bool BatchWork::BeginRedo()
{
    std::uint32_t error = m_folder.Append(m_file, WriteCheckpoint(*m_journal.applied, m_journal.check));
    if (!error)
        error = NoteProtected();
    if (!error)
        error = m_folder.SetPhase(m_file, BatchPhase::Applying);
    return MayGoOn(error ? error : m_folder.Flush());
}

/// Changes are done and undone at the old paths, unless they follow the renames.
void BatchWork::Run(Direction direction, const Report& report, const StopRequest& isStopAsked)
{
    const auto isAsked = [&isStopAsked] {
        return isStopAsked && isStopAsked();
    };
    const Report counted = CountAnd(report);
    bool isWhole = true;
    const auto runChanges = [&](bool followRenames) {
        const auto reportChange = [&](std::size_t index, const Model::Outcome& result) {
            counted(m_journal.plan.entries.size() + index, result);
        };
        // Once the user has asked to stop, do not ask again.
        isWhole &= m_changes.Run(direction, followRenames, reportChange, [&] { return !isWhole || isAsked(); });
    };
    const bool isBackward = direction == Direction::Backward;
    runChanges(isBackward);
    isWhole &= m_executor.Run(direction, counted, [&] { return !isWhole || isAsked(); });
    runChanges(!isBackward);
    m_summary.wasStopped = !isWhole;
    FlushReplaced();
    CheckListings(direction == Direction::Forward ? Location::After : Location::Before);
    Close(direction);
}

BatchWork::Report BatchWork::CountAnd(const Report& report)
{
    return [this, report](std::size_t index, const Model::Outcome& result) {
        if (index < m_isKept.size() && m_isKept[index])
            return;
        Count(m_summary, result.status);
        report(index, result);
    };
}

void BatchWork::Predict(Direction direction, const Report& report)
{
    const Report counted = CountAnd(report);
    const std::vector<Model::PlanEntry>& entries = m_journal.plan.entries;
    const bool isForward = direction == Direction::Forward;
    // For each entry, the one whose place it takes.
    std::vector<Model::PlanIndex> inPlace(entries.size(), Model::none);
    for (Model::PlanIndex entry = 0; entry < entries.size(); ++entry)
        if (const Model::PlanIndex before = entries[entry].waitsFor; before != Model::none)
            inPlace[isForward ? entry : before] = isForward ? before : entry;
    for (Model::PlanIndex entry = 0; entry < entries.size(); ++entry)
        counted(entry, PredictEntry(entry, isForward ? Location::After : Location::Before, inPlace[entry]));
    for (std::size_t index = 0; index < m_journal.changes.size(); ++index)
        if (!m_changes.IsKept(index))
            counted(entries.size() + index, m_changes.Predict(index, direction));
}

/// Whether the batch made a folder at `place`, which is removed when the batch is undone.
bool BatchWork::IsMadeFolder(const Model::Place& place) const
{
    const std::vector<Model::PlanFolder>& folders = m_journal.plan.folders;
    for (Model::PlanIndex folder = 0; folder < folders.size(); ++folder)
        if (folders[folder].isNew && folders[folder].place == place && m_progress.OfFolder(folder) == NewFolder::Made)
            return true;
    return false;
}

/// Refuses entries that are not found, and those whose place is taken by something outside the batch.
Model::Outcome BatchWork::PredictEntry(Model::PlanIndex entry, Location goal, Model::PlanIndex inPlace)
{
    const Model::Place place = m_progress.PlaceOf(entry, goal);
    if (m_notFound.contains(entry))
        return m_notFound.at(entry);
    const bool willLeave = inPlace != Model::none && (inPlace == entry || m_progress.Of(inPlace) != Location::Unknown);
    const bool isFree = m_progress.Of(entry) == goal || willLeave || !m_progress.IsThere(place.folder) ||
                        VyrPlatform::LookAtFile(m_progress.PathOf(place)).kind == Kind::Missing ||
                        (goal == Location::Before && IsMadeFolder(place));
    if (isFree)
        return {.status = Model::Status::Done, .error = 0, .reason = {}};
    return {.status = Model::Status::Failed, .error = 0, .reason = ReasonWhereTaken(goal)};
}

/// Flushes each folder once: waiting for the disk after each file would double the time of the whole batch. Until then
/// the disk has either the old file or the new one, and the journal of an open batch.
void BatchWork::FlushReplaced()
{
    std::set<CString> folders;
    for (std::size_t index = 0; index < m_journal.changes.size(); ++index)
        if (!m_changes.IsKept(index) && dynamic_cast<const Model::KeepsFile*>(m_journal.changes[index].change.get()))
            folders.emplace(Model::FolderPart(m_changes.PathOf(index)));
    for (const CString& folder : folders)
        static_cast<void>(m_files.FlushFolder(folder));
}

void BatchWork::CheckListings(Location location)
{
    for (const Model::PlanIndex entry : FindUnlisted(m_journal.plan, m_progress, location, m_files))
        if (!m_isKept[entry])
            m_summary.missing.push_back(m_progress.PathOf(m_progress.PlaceOf(entry, location)));
}

void BatchWork::Close(Direction direction)
{
    const Checkpoint checkpoint = MakeCheckpoint(direction);
    if (direction == Direction::Backward)
        NameKeptFolders(checkpoint);
    m_summary.number = m_file.number;
    if (!checkpoint.entriesTemporary.empty())
        m_summary.error = u"some entries have temporary names: \"vyr recover\" tries again";
    else if (IsAnyDone())
        End(checkpoint, BatchPhase::Applied);
    else if (direction == Direction::Forward && checkpoint.foldersMade.empty() && !m_journal.applied)
        Forget();
    else
        End(checkpoint, BatchPhase::Undone);
    m_summary.undo = m_file.undo;
}

Checkpoint BatchWork::MakeCheckpoint(Direction direction) const
{
    Checkpoint checkpoint;
    // After a redo that did nothing, the batch is still undone.
    checkpoint.isBackward = direction == Direction::Backward || (m_journal.applied && !IsAnyDone());
    checkpoint.wasStopped = m_summary.wasStopped;
    for (Model::PlanIndex entry = 0; entry < m_journal.plan.entries.size(); ++entry) {
        const Location location = m_progress.Of(entry);
        // Entries that are not found count as not done, except in an undo: there they may be found at the next attempt.
        const bool isNotDone = location == Location::Before ||
                               (location == Location::Unknown && (direction == Direction::Forward || m_isKept[entry]));
        if (location == Location::Temporary)
            checkpoint.entriesTemporary.push_back(entry);
        else if (isNotDone)
            checkpoint.entriesBefore.push_back(entry);
    }
    for (Model::PlanIndex folder = 0; folder < m_journal.plan.folders.size(); ++folder)
        if (m_progress.OfFolder(folder) == NewFolder::Made)
            checkpoint.foldersMade.push_back(folder);
    for (std::size_t index = 0; index < m_journal.changes.size(); ++index)
        if (!m_changes.MayBeDone(index, direction))
            checkpoint.changesBefore.push_back(static_cast<Model::PlanIndex>(index));
    return checkpoint;
}

bool BatchWork::HasMadeFolder() const
{
    for (Model::PlanIndex folder = 0; folder < m_journal.plan.folders.size(); ++folder)
        if (m_progress.OfFolder(folder) == NewFolder::Made)
            return true;
    return false;
}

bool BatchWork::IsAnyDone() const
{
    for (Model::PlanIndex entry = 0; entry < m_journal.plan.entries.size(); ++entry)
        if (m_progress.Of(entry) == Location::After)
            return true;
    return m_changes.IsAnyDone();
}

/// Sets the phase before it writes the checkpoint. Without a checkpoint the next work on the batch looks at the disk; a
/// checkpoint of an open batch could be from its beginning or its end.
void BatchWork::End(const Checkpoint& checkpoint, BatchPhase phase)
{
    std::uint32_t error = m_folder.SetPhase(m_file, phase);
    if (error) {
        m_summary.error = CString::Join({u"the journal could not be closed: ", Text::ErrorText(error),
                                         u"; \"vyr recover\" does that once it is possible"});
        return;
    }
    error = m_folder.Append(m_file, WriteCheckpoint(checkpoint, m_journal.check));
    if (error)
        m_summary.error = CString::Join({u"how far the batch came could not be written to its journal: ",
                                         Text::ErrorText(error), u"; \"vyr undo\" goes by what it finds on the disk"});
}

void BatchWork::Forget()
{
    const std::uint32_t error = m_folder.Remove(m_file);
    if (error)
        m_summary.error = CString::Join({u"the journal could not be removed: ", Text::ErrorText(error)});
    else
        m_summary.number = 0;
}

void BatchWork::NameKeptFolders(const Checkpoint& checkpoint)
{
    for (const Model::PlanIndex folder : checkpoint.foldersMade) {
        const std::optional<CString> path = m_progress.PathOfFolder(folder);
        if (path)
            m_summary.keptFolders.push_back(*path);
    }
}

BatchEntry BatchWork::Describe(std::size_t index, const Model::Outcome& result) const
{
    const std::size_t renames = m_journal.plan.entries.size();
    if (index >= renames) {
        const CString path = m_changes.PathOf(index - renames);
        return {.before = path,
                .after = path,
                .result = result,
                .hasChanged = false,
                .change = m_journal.changes[index - renames].change};
    }
    const auto entry = static_cast<Model::PlanIndex>(index);
    return {.before = m_before.PathOf(m_before.PlaceOf(entry, Location::Before)),
            .after = m_after.PathOf(m_after.PlaceOf(entry, Location::After)),
            .result = result,
            .hasChanged = m_hasChanged[entry],
            .change = nullptr};
}

} // namespace VyrHost::Batch
