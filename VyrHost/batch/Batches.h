/// @file
/// Applies batches of changes, undoes and redoes them, and ends those that were cut off.
#pragma once

#include <VyrHost/batch/JournalFolder.h>
#include <VyrHost/batch/PlanProgress.h>
#include <VyrHost/model/RenamePlan.h>
#include <VyrHost/model/Result.h>

#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace VyrHost::Batch {

enum class BatchState : std::uint8_t
{
    /// Its work has ended; what was done can be undone.
    Applied,
    /// The undo has ended, and left some of it.
    UndonePartly,
    Undone,
    /// Another program applies, undoes or recovers it.
    BeingWorkedOn,
    /// It was cut off while it was applied.
    CutOff,
    /// It was cut off while it was undone.
    CutOffUndoing,
    /// Its journal cannot be read: the information's problem says why.
    Damaged
};

/// What the journal tells of a batch.
struct BatchInformation
{
    /// From 1 on, in the order of time.
    std::uint32_t number = 0;
    BatchState state = BatchState::Applied;
    /// The number of its last undo, by which it is redone; 0 when it never was undone.
    std::uint32_t undo = 0;
    /// Local time as yyyy/MM/dd HH:mm:ss.
    CString started;
    /// The command that made it; empty where the journal does not tell.
    CString command;
    /// The folder that all of it lies in; empty where there is none, or the journal does not tell.
    CString folder;
    /// How many changes it was to do.
    std::size_t entries = 0;
    /// How many of them are done and not undone; when it was undone, those that were not found, and those
    /// that another program has changed since, count, too.
    /// Nothing where the journal does not tell: the batch or the last lines of its journal were cut off.
    std::optional<std::size_t> renamed;
    /// The last work on it ended because it was asked to.
    bool wasStopped = false;
    /// The path of the first of them, and its new path, or what it was set to.
    CString firstFrom;
    CString firstTo;
    /// For people; empty unless the batch is damaged.
    CString problem;
};

/// Whether there may be something of a batch to undo.
[[nodiscard]] inline bool CanBeUndone(BatchState state)
{
    return state == BatchState::Applied || state == BatchState::UndonePartly;
}

/// The latest of `batches` (the latest first) that can be undone or is damaged, and those before it, in the order in
/// which "vyr undo" tries them.
struct UndoCandidates
{
    /// Those that lie in the folder or below it. A damaged one does not tell where it lies, and counts, too.
    std::vector<BatchInformation> here;
    std::vector<BatchInformation> elsewhere;
};

[[nodiscard]] UndoCandidates FindUndoCandidates(const std::vector<BatchInformation>& batches, const CString& folder);

/// What became of one entry of a batch that is undone, redone or recovered.
struct BatchEntry
{
    /// Its paths before the batch and after it; the same path where it is not renamed.
    CString before;
    CString after;
    Model::Outcome result;
    /// The file was written to, or replaced by another, since the batch.
    bool hasChanged = false;
    /// What is changed where it is not renamed; else null.
    std::shared_ptr<const Model::Change> change;
};

/// The results of a batch that is undone, redone or recovered.
class BatchResults final : public Model::Results
{
public:
    explicit BatchResults(Direction direction) : m_direction(direction) {}

    void Add(const BatchEntry& entry) { m_entries.push_back(entry); }

    [[nodiscard]] std::size_t Count() const override { return m_entries.size(); }
    [[nodiscard]] Model::Result At(std::size_t index) const override;

private:
    const Direction m_direction;
    std::vector<BatchEntry> m_entries;
};

enum class Obstacle : std::uint8_t
{
    None,
    /// Its journal is damaged, or newer than this program.
    JournalNotRead,
    /// None of its files is where the batch left it.
    FilesGone
};

/// Why nothing can be done with the batch of a number.
inline constexpr const char16_t* noSuchBatch = u"the journal has no batch of this number";

/// What was done. Every entry counts in one of the four.
struct BatchSummary
{
    /// The batch's number in the journal; 0 when nothing was done that could be undone: nothing was begun where
    /// there is an error.
    std::uint32_t number = 0;
    /// The number by which the batch is redone; 0 when it never was undone.
    std::uint32_t undo = 0;
    std::size_t done = 0;
    std::size_t failed = 0;
    std::size_t refused = 0;
    std::size_t notReached = 0;
    /// The paths of entries that count as done, but that their folders do not list under these names afterwards.
    std::vector<CString> missing;
    /// The folders that the batch has made and that are not removed, since they now hold something else.
    std::vector<CString> keptFolders;
    /// The work ended because it was asked to.
    bool wasStopped = false;
    /// For a batch that is applied: whether the work on it was begun.
    bool wasBegun = false;
    /// Why the batch itself cannot be undone or redone.
    Obstacle obstacle = Obstacle::None;
    /// Why nothing was begun, or why the batch could not be closed; empty when all is well.
    CString error;
};

/// Called once for each entry of a plan and each other change behind them, as soon as its fate is known.
using RenameReport = std::function<void(Model::PlanIndex entry, const Model::Outcome& result)>;

/// A batch that is to be applied.
struct NewBatch
{
    /// The command that makes it, such as "rename".
    CString command;
    /// The folders that all changes are in, and the renames.
    Model::RenamePlan plan;
    /// What stands at the old path of each rename.
    std::vector<VyrPlatform::FileState> states;
    /// The changes of other kinds.
    std::vector<PlannedChange> changes;
};

/// Where and how long journals are kept, what to do while another program is at work, and the known kinds of change
/// besides the rename.
struct BatchSettings
{
    CString journalFolder;
    JournalKeeping keeping;
    LockWait wait;
    Model::ChangeKinds kinds;
};

/// The settings that the environment gives. VYR_JOURNAL_DIR names the folder of the journals; without it, that is the
/// folder "journal" among the product's state. VYR_KEEP_BATCHES and VYR_KEEP_DAYS say how long journals are kept;
/// values other than numbers from 1 on are ignored.
[[nodiscard]] BatchSettings SettingsFromEnvironment();

using BatchEntryReport = std::function<void(const BatchEntry& entry)>;

/// Asked before each rename: whether to end the work after the one in hand.
using StopRequest = std::function<bool()>;

enum class Recovery : std::uint8_t
{
    /// Does what is left of what was cut off.
    Finish,
    /// Restores what was before it.
    Undo
};

/// Whether `recovery` of a batch in `state` (it was cut off) does its renames; else it undoes them.
[[nodiscard]] inline bool DoesRenames(Recovery recovery, BatchState state)
{
    return (state == BatchState::CutOff) == (recovery == Recovery::Finish);
}

/// What became of the journal of a batch that was to be abandoned.
struct AbandonedJournal
{
    /// The batch's number; 0 when none was cut off.
    std::uint32_t number = 0;
    /// The journal's path before, and the one under which it is kept.
    CString from;
    CString to;
    /// Why it stays where it is; empty when it was abandoned.
    CString error;
};

class BatchWork;

/// The batches of the user. One is worked on at a time, by one program: the others are told so in the summary's error.
class Batches
{
public:
    /// @param files  what it acts through: SystemFiles, but for tests.
    Batches(FileOperations& files, BatchSettings settings);

    /// Does the batch that `make` gives: journal on disk first, nothing ever overwritten, afterwards a look at the
    /// folders that do not tell every two names apart.
    /// @param make    called once no other program works on a batch.
    /// @param report  called once for each rename of the plan and, by indexes behind those, each other change, unless
    ///     the summary's error says that nothing was begun; those count as not reached then.
    BatchSummary Apply(const std::function<NewBatch()>& make, const RenameReport& report,
                       const StopRequest& isStopAsked);
    /// Does the renames of `plan`, which has one, and `changes`, likewise.
    BatchSummary Apply(Model::RenamePlan plan, std::vector<PlannedChange> changes, const RenameReport& report,
                       const StopRequest& isStopAsked);

    /// Tells of an entry, by its folder's path (a separator at its end, or empty where the name is a full path), name
    /// and kind, why it may not be renamed or moved: the journal needs it where it is. Gives an empty text for all
    /// others.
    using StayReason = std::function<std::u16string_view(const CString& folder, std::u16string_view name,
                                                         VyrPlatform::FileSystem::Kind kind)>;
    [[nodiscard]] StayReason ReasonsToStay() const;

    /// The batches in the journal, the latest first.
    [[nodiscard]] std::vector<BatchInformation> List() const;
    /// Backward: undoes the batch `number`, in reverse order; what the batch had not done is not reported. Forward:
    /// does again what was undone by the undo `number`.
    BatchSummary Reverse(std::uint32_t number, Direction direction, const BatchEntryReport& report,
                         const StopRequest& isStopAsked);
    /// Tells what Reverse would do, as far as it can be seen, and changes nothing.
    BatchSummary PreviewReverse(std::uint32_t number, Direction direction, const BatchEntryReport& report) const;

    /// The batch that was cut off, if there is one that no running program works on.
    [[nodiscard]] std::optional<BatchInformation> FindCutOff() const;
    /// Ends the batch that was cut off.
    BatchSummary Recover(Recovery recovery, const BatchEntryReport& report, const StopRequest& isStopAsked);
    /// Tells what Recover would do, as far as it can be seen, and changes nothing.
    BatchSummary PreviewRecover(Recovery recovery, const BatchEntryReport& report) const;
    /// Abandons the batch that was cut off, so that others can begin: its files stay as they are, and its journal is
    /// kept under another name. The way out where the journal is damaged, or the files are gone.
    AbandonedJournal AbandonCutOff();

private:
    void UseReversed(JournalFolder& folder, std::uint32_t number, Direction direction, bool isPreview,
                     BatchSummary& summary, const std::function<void(BatchWork&)>& use) const;
    void UseCutOff(JournalFolder& folder, Recovery recovery, bool isPreview, BatchSummary& summary,
                   const std::function<void(BatchWork& work, Direction direction)>& use) const;
    [[nodiscard]] JournalFolder OpenJournals() const;
    [[nodiscard]] std::optional<Journal> ReadWhole(const JournalFolder& folder, const JournalFile& file,
                                                   BatchSummary& summary) const;

    FileOperations* m_files;
    BatchSettings m_settings;
};

} // namespace VyrHost::Batch
