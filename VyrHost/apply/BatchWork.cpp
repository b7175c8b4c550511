// Begins, locates, runs and closes a batch.
#include <VyrHost/apply/BatchWork.h>

#include <VyrHost/apply/ListingCheck.h>
#include <VyrHost/apply/Locator.h>
#include <VyrHost/files/ErrorText.h>

#include <algorithm>
#include <utility>

namespace VyrHost {

namespace {

using VyrPlatform::FileState;
using VyrPlatform::FileSystem::Kind;

/// Whether a file stands where a folder was listed, or the other way round.
bool IsOtherKind(Kind listed, Kind found)
{
    return (listed == Kind::File && found == Kind::Folder) || (listed == Kind::Folder && found == Kind::File);
}

void Count(BatchSummary& summary, RenameOutcome outcome)
{
    switch (outcome) {
    case RenameOutcome::Done:
        ++summary.done;
        break;
    case RenameOutcome::Failed:
        ++summary.failed;
        break;
    case RenameOutcome::Refused:
        ++summary.refused;
        break;
    case RenameOutcome::NotReached:
        ++summary.notReached;
        break;
    }
}

RenameResult NotFound(std::uint32_t error)
{
    CString reason = u"it is at none of its paths";
    if (error)
        reason = CString::Join({reason, u": ", ErrorText(error)});
    return {.outcome = RenameOutcome::Failed, .error = error, .reason = reason};
}

} // namespace

BatchWork::BatchWork(FileOperations& files, JournalFolder& folder, Journal journal, BatchSummary& summary)
    : m_files(files), m_folder(folder), m_journal(std::move(journal)),
      m_progress(m_journal.plan, m_journal.heading.token), m_before(m_progress), m_after(m_progress),
      m_executor(m_journal.plan, m_progress, files), m_isKept(m_journal.plan.entries.size()),
      m_hasChanged(m_journal.plan.entries.size()), m_summary(summary)
{
    for (PlanIndex entry = 0; entry < m_journal.plan.entries.size(); ++entry)
        m_after.Set(entry, Standing::After);
}

bool BatchWork::Begin()
{
    for (PlanIndex entry = 0; entry < m_journal.plan.entries.size(); ++entry)
        CheckSource(entry);
    KeepJournalInPlace();
    return MayGoOn(m_folder.Begin(m_journal, m_file));
}

void BatchWork::CheckSource(PlanIndex entry)
{
    FileState& state = m_journal.states[entry];
    if (state.kind == Kind::Missing) {
        LeaveOut(entry, {.outcome = RenameOutcome::Failed, .error = state.error, .reason = ErrorText(state.error)});
    } else if (IsOtherKind(m_journal.plan.entries[entry].kind, state.kind)) {
        LeaveOut(entry, {.outcome = RenameOutcome::Refused,
                         .error = 0,
                         .reason = u"it is no longer what it was when it was listed"});
        state = {};
    }
}

void BatchWork::LeaveOut(PlanIndex entry, const RenameResult& result)
{
    m_progress.Set(entry, Standing::Unknown);
    m_executor.SetResult(entry, result);
}

/// What was not renamed did not get its new path, nor did anything in it.
void BatchWork::Keep(PlanIndex entry)
{
    m_executor.LeaveAlone(entry);
    m_after.Set(entry, Standing::Before);
}

/// To find the batches again their journals have to stay where they are, and the lock has to keep others away.
void BatchWork::KeepJournalInPlace()
{
    const std::vector<PlanEntry>& entries = m_journal.plan.entries;
    const bool hasFolder =
        std::any_of(entries.begin(), entries.end(), [](const PlanEntry& entry) { return entry.kind == Kind::Folder; });
    const auto way = hasFolder ? m_folder.Way() : std::vector<VyrPlatform::FileIdentity>();
    for (PlanIndex entry = 0; entry < entries.size(); ++entry) {
        const FileState& state = m_journal.states[entry];
        if (state.kind == Kind::Folder && std::find(way.begin(), way.end(), state.identity) != way.end())
            KeepInPlace(entry, u"the journal that \"vyr undo\" needs is kept in it");
        else if (state.kind == Kind::File && m_folder.Keeps(entries[entry].from.name, state.identity))
            KeepInPlace(entry, u"it is part of the journal that \"vyr undo\" needs");
    }
}

void BatchWork::KeepInPlace(PlanIndex entry, const CString& reason)
{
    m_executor.LeaveAlone(entry);
    m_executor.SetResult(entry, {.outcome = RenameOutcome::Refused, .error = 0, .reason = reason});
}

bool BatchWork::MayGoOn(std::uint32_t journalError)
{
    if (journalError)
        m_summary.error =
            CString::Join({u"the journal cannot be written, so that nothing was done: ", ErrorText(journalError)});
    return journalError == 0;
}

bool BatchWork::Locate(const JournalFile& file)
{
    m_file = file;
    const bool wasCutOff =
        file.phase == BatchPhase::Applying || file.phase == BatchPhase::TakingBack || !m_journal.mark;
    Locator locator(m_journal, m_progress, m_files);
    locator.KeepMarked();
    locator.Locate(wasCutOff);
    // Folders that could not be removed when it was taken back.
    bool isAnyFound = file.phase == BatchPhase::TakenBack && HasMadeFolder();
    for (PlanIndex entry = 0; entry < m_journal.plan.entries.size(); ++entry) {
        m_isKept[entry] = locator.IsKept(entry);
        m_hasChanged[entry] = locator.HasChanged(entry);
        if (m_isKept[entry])
            Keep(entry);
        else if (m_progress.Of(entry) == Standing::Unknown)
            m_executor.SetResult(entry, NotFound(locator.Error(entry)));
        else
            isAnyFound = true;
    }
    return isAnyFound;
}

bool BatchWork::BeginTakingBack()
{
    const std::uint32_t error = m_folder.SetPhase(m_file, BatchPhase::TakingBack);
    return MayGoOn(error ? error : m_folder.Flush());
}

void BatchWork::Run(Direction direction, const Executor::Report& report, const StopRequest& isStopAsked)
{
    const auto countAndReport = [&](PlanIndex entry, const RenameResult& result) {
        if (m_isKept[entry])
            return;
        Count(m_summary, result.outcome);
        report(entry, result);
    };
    const auto isAsked = [&isStopAsked] {
        return isStopAsked && isStopAsked();
    };
    m_summary.wasStopped = !m_executor.Run(direction, countAndReport, isAsked);
    CheckListings(direction == Direction::Forward ? Standing::After : Standing::Before);
    Close(direction);
}

void BatchWork::CheckListings(Standing standing)
{
    for (const PlanIndex entry : FindUnlisted(m_journal.plan, m_progress, standing, m_files))
        if (!m_isKept[entry])
            m_summary.missing.push_back(m_progress.PathOf(m_progress.PlaceOf(entry, standing)));
}

void BatchWork::Close(Direction direction)
{
    const JournalMark mark = MakeMark(direction);
    if (direction == Direction::Backward)
        NameKeptFolders(mark);
    m_summary.number = m_file.number;
    if (!mark.entriesAside.empty())
        m_summary.error = u"some entries stand under temporary names: \"vyr recover\" tries again";
    else if (IsAny(Standing::After))
        End(mark, BatchPhase::Applied);
    else if (direction == Direction::Forward && mark.foldersMade.empty())
        Forget();
    else
        End(mark, BatchPhase::TakenBack);
}

JournalMark BatchWork::MakeMark(Direction direction) const
{
    JournalMark mark;
    mark.isBackward = direction == Direction::Backward;
    mark.wasStopped = m_summary.wasStopped;
    for (PlanIndex entry = 0; entry < m_journal.plan.entries.size(); ++entry) {
        const Standing standing = m_progress.Of(entry);
        // What is not found after it was to be done counts as not done; what is not found when it is taken back may be
        // there again at the next attempt.
        const bool isNotDone = standing == Standing::Before ||
                               (standing == Standing::Unknown && (direction == Direction::Forward || m_isKept[entry]));
        if (standing == Standing::Aside)
            mark.entriesAside.push_back(entry);
        else if (isNotDone)
            mark.entriesBefore.push_back(entry);
    }
    for (PlanIndex folder = 0; folder < m_journal.plan.folders.size(); ++folder)
        if (m_progress.OfFolder(folder) == NewFolder::Made)
            mark.foldersMade.push_back(folder);
    return mark;
}

bool BatchWork::HasMadeFolder() const
{
    for (PlanIndex folder = 0; folder < m_journal.plan.folders.size(); ++folder)
        if (m_progress.OfFolder(folder) == NewFolder::Made)
            return true;
    return false;
}

bool BatchWork::IsAny(Standing standing) const
{
    for (PlanIndex entry = 0; entry < m_journal.plan.entries.size(); ++entry)
        if (m_progress.Of(entry) == standing)
            return true;
    return false;
}

/// The phase first: a mark that is not written any more only means that the next one who works on the batch looks at
/// the disk, while marks in an open batch could be of its beginning or of its end.
void BatchWork::End(const JournalMark& mark, BatchPhase phase)
{
    std::uint32_t error = m_folder.SetPhase(m_file, phase);
    if (error) {
        m_summary.error = CString::Join({u"the journal could not be closed: ", ErrorText(error),
                                         u"; \"vyr recover\" does that once it is possible"});
        return;
    }
    error = m_folder.Append(m_file, WriteMark(mark, m_journal.check));
    if (error)
        m_summary.error = CString::Join({u"how far the batch came could not be written to its journal: ",
                                         ErrorText(error), u"; \"vyr undo\" goes by what it finds on the disk"});
}

void BatchWork::Forget()
{
    const std::uint32_t error = m_folder.Remove(m_file);
    if (error)
        m_summary.error = CString::Join({u"the journal could not be removed: ", ErrorText(error)});
    else
        m_summary.number = 0;
}

void BatchWork::NameKeptFolders(const JournalMark& mark)
{
    for (const PlanIndex folder : mark.foldersMade) {
        const std::optional<CString> path = m_progress.PathOfFolder(folder);
        if (path)
            m_summary.keptFolders.push_back(*path);
    }
}

BatchEntry BatchWork::Describe(PlanIndex entry, const RenameResult& result) const
{
    return {.before = m_before.PathOf(m_before.PlaceOf(entry, Standing::Before)),
            .after = m_after.PathOf(m_after.PlaceOf(entry, Standing::After)),
            .result = result,
            .hasChanged = m_hasChanged[entry]};
}

} // namespace VyrHost
