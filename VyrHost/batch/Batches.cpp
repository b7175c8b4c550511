// Brings planner, journal and executor together.
#include <VyrHost/batch/Batches.h>

#include <VyrHost/batch/BatchWork.h>
#include <VyrHost/batch/SourceStates.h>
#include <VyrHost/text/ErrorText.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/PathUtils.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/time/Clock.h>

#include <algorithm>
#include <random>
#include <utility>

namespace VyrHost::Batch {

namespace {

using VyrLibraryUtils::FileUtils;

/// What is said of a batch that cannot be recovered.
constexpr const char16_t* wayOut = u"; \"vyr recover --abandon\" goes on without the batch";

CString FindJournalFolder()
{
    const std::optional<CString> named = VyrPlatform::Process::GetEnvironment(u"VYR_JOURNAL_DIR");
    if (named && !named->IsEmpty())
        return *named;
    const CString logs = VyrLibraryUtils::PathUtils::GetApplicationLogFolderPath();
    return logs.IsEmpty() ? logs : FileUtils::GetCombinePath(FileUtils::GetSplitDirPath(logs), u"journal");
}

CString NowAsText()
{
    const COleDateTime now = VyrPlatform::Clock::Now();
    CString text;
    text.Format(u"%04d/%02d/%02d %02d:%02d:%02d", now.GetYear(), now.GetMonth(), now.GetDay(), now.GetHour(),
                now.GetMinute(), now.GetSecond());
    return text;
}

std::uint64_t MakeToken()
{
    std::random_device device;
    return static_cast<std::uint64_t>(device()) << 32 | device();
}

Journal NewJournal(Model::RenamePlan plan, FileOperations& files)
{
    Journal journal;
    journal.states = LookAtSources(plan, files);
    journal.heading.token = MakeToken();
    journal.heading.started = NowAsText();
    journal.heading.entries = plan.entries.size();
    const PlanProgress before(plan, journal.heading.token);
    journal.heading.firstFrom = before.PathOf(plan.entries.front().from);
    journal.heading.firstTo = before.PathOf(plan.entries.front().to);
    journal.plan = std::move(plan);
    return journal;
}

CString DescribeDamage(const JournalFile& file, const CString& problem)
{
    return CString::Join({u"the journal ", file.path, u" is damaged (", problem, u"); nothing was changed"});
}

BatchState StateOf(BatchPhase phase)
{
    switch (phase) {
    case BatchPhase::Applying:
        return BatchState::CutOff;
    case BatchPhase::Undoing:
        return BatchState::CutOffUndoing;
    case BatchPhase::Undone:
        return BatchState::Undone;
    case BatchPhase::Applied:
        break;
    }
    return BatchState::Applied;
}

/// What the journal's last checkpoint tells. It may be of the work before, where that of the last one is missing.
void AddProgress(BatchInformation& information, const std::optional<CheckpointOutline>& checkpoint)
{
    if (!checkpoint)
        return;
    const std::size_t renamed = information.entries - checkpoint->entriesBefore - checkpoint->entriesTemporary;
    if (information.state == BatchState::Undone && !checkpoint->isBackward && renamed > 0)
        return;
    information.renamed = renamed;
    information.wasStopped = checkpoint->wasStopped;
    if (information.state == BatchState::Applied && checkpoint->isBackward)
        information.state = BatchState::UndonePartly;
}

BatchInformation Describe(const JournalFolder& folder, const JournalFile& file)
{
    BatchInformation information;
    information.number = file.number;
    information.state = StateOf(file.phase);
    std::uint32_t error = 0;
    const std::optional<std::string> text = folder.ReadBeginning(file, error);
    const std::optional<JournalHeading> heading =
        text ? ReadHeading(*text, information.problem) : std::optional<JournalHeading>();
    if (!heading) {
        information.state = BatchState::Damaged;
        if (!text)
            information.problem = Text::ErrorText(error);
        return information;
    }
    information.started = heading->started;
    information.entries = heading->entries;
    information.firstFrom = heading->firstFrom;
    information.firstTo = heading->firstTo;
    if (IsEnded(file.phase))
        AddProgress(information, ReadLastCheckpoint(folder.ReadCheckpoints(file), information.entries));
    return information;
}

std::optional<Journal> ReadWhole(const JournalFolder& folder, const JournalFile& file, BatchSummary& summary)
{
    std::uint32_t error = 0;
    const std::optional<std::string> text = folder.Read(file, error);
    if (!text) {
        summary.error = CString::Join({u"the journal ", file.path, u" cannot be read: ", Text::ErrorText(error)});
        return {};
    }
    CString problem;
    std::optional<Journal> journal = ReadJournal(*text, problem);
    if (!journal)
        summary.error = DescribeDamage(file, problem);
    return journal;
}

/// The batch to undo; nothing, with the summary's error set, when there is none.
std::optional<JournalFile> Choose(const JournalFolder& folder, std::optional<std::uint32_t> number,
                                  BatchSummary& summary)
{
    std::vector<JournalFile> journals = folder.List();
    const auto chosen = std::find_if(journals.rbegin(), journals.rend(), [number](const JournalFile& journal) {
        return number ? journal.number == *number : journal.phase == BatchPhase::Applied;
    });
    if (chosen != journals.rend())
        return *chosen;
    summary.error = number ? u"the journal has no batch of this number" : u"there is no batch to undo";
    return {};
}

} // namespace

Batches::Batches() : Batches(SystemFiles(), FindJournalFolder()) {}

Batches::Batches(FileOperations& files, const CString& journalFolder) : m_files(&files), m_journalFolder(journalFolder)
{}

BatchSummary Batches::Apply(Model::RenamePlan plan, const RenameReport& report, const StopRequest& isStopAsked)
{
    BatchSummary summary;
    summary.notReached = plan.entries.size();
    JournalFolder folder(*m_files, m_journalFolder);
    summary.error = folder.Lock();
    if (summary.error.IsEmpty() && folder.FindOpen())
        summary.error = u"an earlier batch was cut off: \"vyr recover\" finishes it or undoes it";
    if (!summary.error.IsEmpty())
        return summary;
    BatchWork work(*m_files, folder, NewJournal(std::move(plan), *m_files), summary);
    if (!work.Begin())
        return summary;
    summary.notReached = 0;
    work.Run(Direction::Forward, report, isStopAsked);
    return summary;
}

std::vector<BatchInformation> Batches::List() const
{
    const JournalFolder folder(*m_files, m_journalFolder);
    std::vector<BatchInformation> batches;
    for (const JournalFile& file : folder.List()) {
        BatchInformation& batch = batches.emplace_back(Describe(folder, file));
        if (!IsEnded(file.phase) && folder.IsLockedByAnother())
            batch.state = BatchState::BeingWorkedOn;
    }
    std::reverse(batches.begin(), batches.end());
    return batches;
}

BatchSummary Batches::Undo(std::optional<std::uint32_t> number, const BatchEntryReport& report,
                           const StopRequest& isStopAsked)
{
    BatchSummary summary;
    JournalFolder folder(*m_files, m_journalFolder);
    summary.error = folder.Lock();
    if (summary.error.IsEmpty() && folder.FindOpen())
        summary.error = u"a batch was cut off: \"vyr recover\" finishes it or undoes it";
    if (!summary.error.IsEmpty())
        return summary;
    const std::optional<JournalFile> file = Choose(folder, number, summary);
    std::optional<Journal> journal = file ? ReadWhole(folder, *file, summary) : std::optional<Journal>();
    if (!journal)
        return summary;
    BatchWork work(*m_files, folder, std::move(*journal), summary);
    if (!work.Locate(*file))
        summary.error = file->phase == BatchPhase::Undone
                            ? u"the batch is undone already"
                            : u"none of the batch's files is where the batch left it; nothing was changed";
    else if (work.BeginUndo())
        work.Run(
            Direction::Backward,
            [&](Model::PlanIndex entry, const Model::RenameResult& result) { report(work.Describe(entry, result)); },
            isStopAsked);
    return summary;
}

std::optional<BatchInformation> Batches::FindCutOff() const
{
    const JournalFolder folder(*m_files, m_journalFolder);
    if (!folder.FindOpen() || folder.IsLockedByAnother())
        return {};
    // Its program may just have ended it.
    const std::optional<JournalFile> file = folder.FindOpen();
    return file ? Describe(folder, *file) : std::optional<BatchInformation>();
}

BatchSummary Batches::Recover(Recovery recovery, const BatchEntryReport& report, const StopRequest& isStopAsked)
{
    BatchSummary summary;
    JournalFolder folder(*m_files, m_journalFolder);
    summary.error = folder.Lock();
    if (!summary.error.IsEmpty())
        return summary;
    const std::optional<JournalFile> file = folder.FindOpen();
    if (!file) {
        summary.error = u"no batch was cut off";
        return summary;
    }
    std::optional<Journal> journal = ReadWhole(folder, *file, summary);
    if (!journal) {
        summary.error = CString::Join({summary.error, wayOut});
        return summary;
    }
    BatchWork work(*m_files, folder, std::move(*journal), summary);
    if (!work.Locate(*file))
        summary.error =
            CString::Join({u"none of the batch's files is at one of its paths; nothing was changed", wayOut});
    else
        work.Run(
            DoesRenames(recovery, StateOf(file->phase)) ? Direction::Forward : Direction::Backward,
            [&](Model::PlanIndex entry, const Model::RenameResult& result) { report(work.Describe(entry, result)); },
            isStopAsked);
    return summary;
}

AbandonedJournal Batches::AbandonCutOff()
{
    AbandonedJournal result;
    JournalFolder folder(*m_files, m_journalFolder);
    result.error = folder.Lock();
    if (!result.error.IsEmpty())
        return result;
    std::optional<JournalFile> file = folder.FindOpen();
    if (!file) {
        result.error = u"no batch was cut off";
        return result;
    }
    result.number = file->number;
    result.from = file->path;
    const std::uint32_t error = folder.Abandon(*file);
    result.to = file->path;
    if (error)
        result.error = CString::Join({u"the journal ", result.from, u" cannot be abandoned: ", Text::ErrorText(error)});
    return result;
}

} // namespace VyrHost::Batch
