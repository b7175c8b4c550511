// Connects planner, journal and executor.
#include <VyrHost/batch/Batches.h>

#include <VyrHost/batch/BatchWork.h>
#include <VyrHost/batch/DiskChecks.h>
#include <VyrHost/model/FolderSet.h>
#include <VyrHost/text/Errors.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/PathUtils.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/time/Clock.h>

#include <algorithm>
#include <charconv>
#include <random>
#include <utility>

namespace VyrHost::Batch {

namespace {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FileState;

/// The advice for a batch that cannot be recovered.
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

CString DescribeDamage(const JournalFile& file, const CString& problem)
{
    return CString::Join(
        {u"the journal ", file.path, u" is damaged, or newer than this program (", problem, u"); nothing was changed"});
}

/// Backward: the batch `number`. Forward: the batch whose last undo is `number`.
std::optional<JournalFile> Find(const JournalFolder& folder, std::uint32_t number, Direction direction,
                                BatchSummary& summary)
{
    const bool isRedo = direction == Direction::Forward;
    for (const JournalFile& file : folder.List())
        if ((isRedo ? file.undo : file.number) == number)
            return file;
    summary.error = isRedo ? u"the journal has no undo of this number" : noSuchBatch;
    return {};
}

/// Whether nothing is left of the last undo.
bool IsRedone(const JournalFile& file, const Journal& journal)
{
    return file.phase == BatchPhase::Applied && journal.checkpoint && !journal.checkpoint->isBackward;
}

/// Says that none of the files of the batch in `file` is found.
CString DescribeAbsence(const JournalFile& file, Direction direction)
{
    if (direction == Direction::Forward)
        return u"none of the files is where the undo left it; nothing was changed";
    if (file.phase != BatchPhase::Undone)
        return u"none of the batch's files is where the batch left it; nothing was changed";
    if (file.undo == 0)
        return u"the batch is undone already";
    CString text;
    text.Format(u"the batch is undone already; \"vyr undo %u\" redoes it", file.undo);
    return text;
}

/// Passes each result to `report`, as `work` describes it.
BatchWork::Report Described(const BatchWork& work, const BatchEntryReport& report)
{
    return [&work, &report](std::size_t entry, const Model::Outcome& result) {
        report(work.Describe(entry, result));
    };
}

/// `path` without the separator at its end, which that of a root keeps.
CString WithoutSeparator(std::u16string_view path)
{
    const bool isRoot = path.empty() || Model::FolderPart(path.substr(0, path.size() - 1)).empty();
    return isRoot ? path : path.substr(0, path.size() - 1);
}

/// The folder that contains both `left` and `right`, each with a separator at its end.
std::u16string_view CommonPart(std::u16string_view left, std::u16string_view right)
{
    const auto [end, other] = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    return Model::FolderPart(left.substr(0, static_cast<std::size_t>(end - left.begin())));
}

/// The folder that contains all changes, before the batch and after it; empty if there is none.
CString FindCommonFolder(const Journal& journal)
{
    const std::vector<Model::PlanFolder>& folders = journal.plan.folders;
    std::vector<bool> isUsed(folders.size());
    for (const Model::PlanEntry& entry : journal.plan.entries)
        isUsed[entry.from.folder] = isUsed[entry.to.folder] = true;
    for (const PlannedChange& planned : journal.changes)
        isUsed[planned.place.folder] = true;
    std::optional<CString> common;
    for (Model::PlanIndex folder = 0; folder < folders.size(); ++folder) {
        if (!isUsed[folder])
            continue;
        CString path = Model::PathBefore(journal.plan, folder);
        if (Model::FolderPart(path).size() != path.View().size())
            path += VyrPlatform::FileSystem::Separator();
        common = common ? CString(CommonPart(*common, path)) : path;
    }
    return common ? WithoutSeparator(*common) : CString();
}

Journal MakeJournal(NewBatch batch)
{
    Journal journal;
    journal.plan = std::move(batch.plan);
    journal.states = std::move(batch.states);
    journal.changes = std::move(batch.changes);
    journal.heading.token = MakeToken();
    journal.heading.started = NowAsText();
    journal.heading.command = batch.command;
    journal.heading.folder = FindCommonFolder(journal);
    journal.heading.entries = journal.plan.entries.size() + journal.changes.size();
    const auto pathOf = [&journal](const Model::Place& place) {
        return FileUtils::GetCombinePath(Model::PathBefore(journal.plan, place.folder), place.name.View());
    };
    if (!journal.plan.entries.empty()) {
        journal.heading.firstFrom = pathOf(journal.plan.entries.front().from);
        journal.heading.firstTo = pathOf(journal.plan.entries.front().to);
    } else if (!journal.changes.empty()) {
        journal.heading.firstFrom = pathOf(journal.changes.front().place);
        journal.heading.firstTo = journal.changes.front().change->ShownAfter();
    }
    return journal;
}

/// The number in the environment variable `name`; else `otherwise`.
template <class Number>
Number NumberFromEnvironment(const CString& name, Number otherwise)
{
    const std::string text =
        VyrPlatform::Encoding::ToUtf8(VyrPlatform::Process::GetEnvironment(name).value_or(CString()));
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && number >= 1 ? number : otherwise;
}

} // namespace

BatchSettings SettingsFromEnvironment()
{
    BatchSettings settings;
    settings.journalFolder = FindJournalFolder();
    settings.keeping.batches = NumberFromEnvironment(u"VYR_KEEP_BATCHES", settings.keeping.batches);
    settings.keeping.days = NumberFromEnvironment(u"VYR_KEEP_DAYS", settings.keeping.days);
    return settings;
}

Batches::Batches(FileOperations& files, BatchSettings settings) : m_files(&files), m_settings(std::move(settings)) {}

Model::StayReason Batches::ReasonsToStay() const
{
    return [journals = std::make_shared<const JournalFolder>(OpenJournals())](
               const CString& folder, std::u16string_view name, VyrPlatform::FileSystem::Kind kind) {
        return JournalFolder::MayHaveToStay(name, kind)
                   ? journals->ReasonToStay(name, VyrPlatform::LookAtFile(CString::Join({folder, name})))
                   : std::u16string_view();
    };
}

JournalFolder Batches::OpenJournals() const
{
    return {*m_files, m_settings.journalFolder, m_settings.keeping};
}

std::optional<Journal> Batches::ReadWhole(const JournalFolder& folder, const JournalFile& file,
                                          BatchSummary& summary) const
{
    std::uint32_t error = 0;
    const std::optional<std::string> text = folder.Read(file, error);
    CString problem;
    std::optional<Journal> journal = text ? ReadJournal(*text, problem, m_settings.kinds) : std::optional<Journal>();
    if (!text)
        summary.error = CString::Join({u"the journal ", file.path, u" cannot be read: ", Text::ErrorText(error)});
    else if (!journal)
        summary.error = DescribeDamage(file, problem);
    summary.obstacle = journal ? Obstacle::None : Obstacle::JournalNotRead;
    return journal;
}

BatchSummary Batches::Apply(const std::function<NewBatch()>& make, const RenameReport& report,
                            const StopRequest& isStopAsked)
{
    BatchSummary summary;
    JournalFolder folder = OpenJournals();
    summary.error = folder.Lock(m_settings.wait);
    if (summary.error.IsEmpty() && folder.FindOpen())
        summary.error = u"an earlier batch was cut off: \"vyr recover\" finishes it or undoes it";
    if (!summary.error.IsEmpty())
        return summary;
    Journal journal = MakeJournal(make());
    const std::size_t count = journal.heading.entries;
    summary.wasBegun = count == 0;
    if (count == 0)
        return summary;
    BatchWork work(*m_files, folder, std::move(journal), summary);
    summary.wasBegun = work.Begin();
    if (summary.wasBegun)
        work.Run(Direction::Forward, report, isStopAsked);
    else
        summary.notReached = count;
    return summary;
}

BatchSummary Batches::Apply(Model::RenamePlan plan, std::vector<PlannedChange> changes, const RenameReport& report,
                            const StopRequest& isStopAsked)
{
    const std::size_t count = plan.entries.size() + changes.size();
    const auto make = [this, &plan, &changes]() -> NewBatch {
        std::vector<FileState> states = LookAtSources(plan, *m_files);
        return {
            .command = u"rename", .plan = std::move(plan), .states = std::move(states), .changes = std::move(changes)};
    };
    BatchSummary summary = Apply(make, report, isStopAsked);
    if (!summary.wasBegun)
        summary.notReached = count;
    return summary;
}

BatchSummary Batches::Reverse(std::uint32_t number, Direction direction, const BatchEntryReport& report,
                              const StopRequest& isStopAsked)
{
    BatchSummary summary;
    JournalFolder folder = OpenJournals();
    summary.error = folder.Lock(m_settings.wait);
    if (summary.error.IsEmpty() && folder.FindOpen())
        summary.error = u"a batch was cut off: \"vyr recover\" finishes it or undoes it";
    if (!summary.error.IsEmpty())
        return summary;
    UseReversed(folder, number, direction, false, summary, [&](BatchWork& work) {
        if (direction == Direction::Backward ? work.BeginUndo() : work.BeginRedo())
            work.Run(direction, Described(work, report), isStopAsked);
    });
    return summary;
}

BatchSummary Batches::PreviewReverse(std::uint32_t number, Direction direction, const BatchEntryReport& report) const
{
    BatchSummary summary;
    JournalFolder folder = OpenJournals();
    UseReversed(folder, number, direction, true, summary,
                [&](BatchWork& work) { work.Predict(direction, Described(work, report)); });
    return summary;
}

/// Finds the batch `number` (forward: the one whose undo has that number), locates its files, and passes it to `use`.
void Batches::UseReversed(JournalFolder& folder, std::uint32_t number, Direction direction, bool isPreview,
                          BatchSummary& summary, const std::function<void(BatchWork&)>& use) const
{
    const std::optional<JournalFile> file = Find(folder, number, direction, summary);
    std::optional<Journal> journal = file ? ReadWhole(folder, *file, summary) : std::optional<Journal>();
    if (!journal)
        return;
    if (direction == Direction::Forward && IsRedone(*file, *journal)) {
        summary.error = u"the undo is redone already";
        return;
    }
    BatchWork work(*m_files, folder, std::move(*journal), summary);
    if (!work.Locate(*file, direction, isPreview)) {
        summary.error = DescribeAbsence(*file, direction);
        summary.obstacle = Obstacle::FilesGone;
        return;
    }
    if (isPreview)
        summary.number = file->number;
    use(work);
}

BatchSummary Batches::Recover(Recovery recovery, const BatchEntryReport& report, const StopRequest& isStopAsked)
{
    BatchSummary summary;
    JournalFolder folder = OpenJournals();
    summary.error = folder.Lock(m_settings.wait);
    if (summary.error.IsEmpty())
        UseCutOff(folder, recovery, false, summary, [&](BatchWork& work, Direction direction) {
            if (work.BeginRecovery())
                work.Run(direction, Described(work, report), isStopAsked);
        });
    return summary;
}

BatchSummary Batches::PreviewRecover(Recovery recovery, const BatchEntryReport& report) const
{
    BatchSummary summary;
    JournalFolder folder = OpenJournals();
    UseCutOff(folder, recovery, true, summary,
              [&](BatchWork& work, Direction direction) { work.Predict(direction, Described(work, report)); });
    return summary;
}

/// Finds the batch that was cut off, locates its files, and passes it to `use` with the direction of the recovery.
void Batches::UseCutOff(JournalFolder& folder, Recovery recovery, bool isPreview, BatchSummary& summary,
                        const std::function<void(BatchWork& work, Direction direction)>& use) const
{
    const std::optional<JournalFile> file = folder.FindOpen();
    if (!file) {
        summary.error = u"no batch was cut off";
        return;
    }
    std::optional<Journal> journal = ReadWhole(folder, *file, summary);
    if (!journal) {
        summary.error = CString::Join({summary.error, wayOut});
        return;
    }
    const BatchState state = file->phase == BatchPhase::Applying ? BatchState::CutOff : BatchState::CutOffUndoing;
    const Direction direction = DoesRenames(recovery, state) ? Direction::Forward : Direction::Backward;
    BatchWork work(*m_files, folder, std::move(*journal), summary);
    if (!work.Locate(*file, direction, isPreview)) {
        summary.error =
            CString::Join({u"none of the batch's files is at one of its paths; nothing was changed", wayOut});
        return;
    }
    if (isPreview)
        summary.number = file->number;
    use(work, direction);
}

AbandonedJournal Batches::AbandonCutOff()
{
    AbandonedJournal result;
    JournalFolder folder = OpenJournals();
    result.error = folder.Lock(m_settings.wait);
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
