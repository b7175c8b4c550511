/// @file
/// Applies batches of changes, undoes and redoes them, and ends those that were cut off.
#pragma once

#include <VyrHost/batch/JournalFolder.h>
#include <VyrHost/batch/PlanProgress.h>
#include <VyrHost/model/EntryList.h>
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
    /// The undo has ended, but some of it is still done.
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

/// What the journal says about a batch.
struct BatchInformation
{
    /// From 1 on, in chronological order.
    std::uint32_t number = 0;
    BatchState state = BatchState::Applied;
    /// The number of its last undo, which is used to redo it; 0 when it was never undone.
    std::uint32_t undo = 0;
    /// Local time as yyyy/MM/dd HH:mm:ss.
    CString started;
    /// The command that made it; empty if the journal does not say.
    CString command;
    /// The folder that contains all its entries; empty if there is none or the journal does not say.
    CString folder;
    /// The number of its changes.
    std::size_t entries = 0;
    /// The number of changes that are done and not undone. After an undo it includes those that were not found and
    /// those that another program has changed since. Nothing if the journal does not say: the batch, or the last lines
    /// of its journal, were cut off.
    std::optional<std::size_t> renamed;
    /// The last work on it was stopped by the user.
    bool wasStopped = false;
    /// The path of the first of them, and its new path, or what it was set to.
    CString firstFrom;
    CString firstTo;
    /// For people; empty unless the batch is damaged.
    CString problem;
};

/// Whether there may be something to undo.
[[nodiscard]] inline bool CanBeUndone(BatchState state)
{
    return state == BatchState::Applied || state == BatchState::UndonePartly;
}

/// The batches that can be undone or are damaged, the latest first.
struct UndoCandidates
{
    /// Those in the folder or below it, and damaged ones, which do not say where they are.
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
    /// The file was modified or replaced since the batch.
    bool hasChanged = false;
    /// The change, if it is not a rename; else null.
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

/// Why nothing can be done for a batch number.
inline constexpr const char16_t* noSuchBatch = u"the journal has no batch of this number";

/// What was done. Every entry is counted in one of the four.
struct BatchSummary
{
    /// The batch's number in the journal; 0 when nothing was done that could be undone.
    std::uint32_t number = 0;
    /// The number that redoes the batch; 0 when it was never undone.
    std::uint32_t undo = 0;
    std::size_t done = 0;
    std::size_t failed = 0;
    std::size_t refused = 0;
    std::size_t notReached = 0;
    /// The paths of entries that count as done but are missing in the listings of their folders.
    std::vector<CString> missing;
    /// The folders that the batch made and that stay because they now contain something else.
    std::vector<CString> keptFolders;
    /// The user stopped the work.
    bool wasStopped = false;
    /// For a batch that is applied: whether the work on it was begun.
    bool wasBegun = false;
    /// Why the batch itself cannot be undone or redone.
    Obstacle obstacle = Obstacle::None;
    /// Why nothing was begun, or why the batch could not be closed; empty when all is well.
    CString error;
};

/// Called once for each entry of a plan, and then for each other change, as soon as its result is known.
using RenameReport = std::function<void(Model::PlanIndex entry, const Model::Outcome& result)>;

/// A batch that is to be applied.
struct NewBatch
{
    /// The command that makes it, such as "rename".
    CString command;
    /// The folders that all changes are in, and the renames.
    Model::RenamePlan plan;
    /// The state of the entry at the old path of each rename.
    std::vector<VyrPlatform::FileState> states;
    /// The changes of other kinds.
    std::vector<PlannedChange> changes;
};

/// Where and for how long journals are kept, what to do while another program is at work, and the known kinds of change
/// other than renames.
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

/// Called before each rename: whether to stop before it.
using StopRequest = std::function<bool()>;

enum class Recovery : std::uint8_t
{
    /// Completes the interrupted work.
    Finish,
    /// Reverts the interrupted work.
    Undo
};

/// Whether `recovery` of a batch in `state`, which was cut off, applies its renames; else it undoes them.
[[nodiscard]] inline bool DoesRenames(Recovery recovery, BatchState state)
{
    return (state == BatchState::CutOff) == (recovery == Recovery::Finish);
}

/// The result of abandoning a batch.
struct AbandonedJournal
{
    /// The batch's number; 0 when none was cut off.
    std::uint32_t number = 0;
    /// The journal's old path, and its new one.
    CString from;
    CString to;
    /// Why it stays where it is; empty when it was abandoned.
    CString error;
};

class BatchWork;

/// The batches of the user. Only one program works on a batch at a time; for others the summary has an error.
class Batches
{
public:
    /// @param files  the file operations: SystemFiles, except in tests.
    Batches(FileOperations& files, BatchSettings settings);

    /// Applies the batch that `make` returns. Writes the journal to the disk first, and never overwrites anything.
    /// Afterwards lists the folders that may store a name differently, to check the names in them.
    /// @param make  called when no other program works on a batch.
    /// @param report  called once for each rename of the plan, and for each other change with the indexes after those.
    ///     Not called when nothing was begun: the summary then has an error and counts them as not reached.
    BatchSummary Apply(const std::function<NewBatch()>& make, const RenameReport& report,
                       const StopRequest& isStopAsked);
    /// Applies `plan`, which has at least one rename, and `changes` in the same way.
    BatchSummary Apply(Model::RenamePlan plan, std::vector<PlannedChange> changes, const RenameReport& report,
                       const StopRequest& isStopAsked);

    /// Entries that the journal needs where they are.
    [[nodiscard]] Model::StayReason ReasonsToStay() const;

    /// The batches in the journal, the latest first.
    [[nodiscard]] std::vector<BatchInformation> List() const;
    /// Backward: undoes the batch `number` in reverse order, and reports only what it had done. Forward: redoes what
    /// the undo `number` undid.
    BatchSummary Reverse(std::uint32_t number, Direction direction, const BatchEntryReport& report,
                         const StopRequest& isStopAsked);
    /// Reports what Reverse would do, as far as can be predicted, and changes nothing.
    BatchSummary PreviewReverse(std::uint32_t number, Direction direction, const BatchEntryReport& report) const;

    /// The batch that was cut off, if there is one and no running program works on it.
    [[nodiscard]] std::optional<BatchInformation> FindCutOff() const;
    /// Recovers the batch that was cut off.
    BatchSummary Recover(Recovery recovery, const BatchEntryReport& report, const StopRequest& isStopAsked);
    /// Reports what Recover would do, as far as can be predicted, and changes nothing.
    BatchSummary PreviewRecover(Recovery recovery, const BatchEntryReport& report) const;
    /// Abandons the batch that was cut off, so that others can begin: its files stay as they are, and its journal is
    /// kept under another name. For a damaged journal, or when the files are gone.
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
