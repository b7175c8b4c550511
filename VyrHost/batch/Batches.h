/// @file
/// Applies batches of renames, undoes them, and ends those that were cut off.
#pragma once

#include <VyrHost/model/RenamePlan.h>
#include <VyrHost/model/RenameResult.h>

#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace VyrHost::Batch {

class FileOperations;

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
    /// Local time as yyyy/MM/dd HH:mm:ss.
    CString started;
    /// How many renames it was to do.
    std::size_t entries = 0;
    /// How many of them are done and not undone; when it was undone, those that were not found count, too.
    /// Nothing where the journal does not tell: the batch or the last lines of its journal were cut off.
    std::optional<std::size_t> renamed;
    /// The last work on it ended because it was asked to.
    bool wasStopped = false;
    /// The first of them.
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

/// What became of one entry of a batch that is undone or recovered.
struct BatchEntry
{
    /// Its paths before the batch and after it.
    CString before;
    CString after;
    Model::RenameResult result;
    /// The file was written to, or replaced by another, since the batch.
    bool hasChanged = false;
};

/// What was done. Every entry counts in one of the four.
struct BatchSummary
{
    /// The batch's number in the journal; 0 when nothing was done that could be undone: nothing was begun where
    /// there is an error.
    std::uint32_t number = 0;
    std::size_t done = 0;
    std::size_t failed = 0;
    std::size_t refused = 0;
    std::size_t notReached = 0;
    /// The paths of entries that count as done, but that their folders do not list under these names afterwards.
    std::vector<CString> missing;
    /// The folders that the batch has made and that are not removed, since they hold something else by now.
    std::vector<CString> keptFolders;
    /// The work ended because it was asked to.
    bool wasStopped = false;
    /// Why nothing was begun, or why the batch could not be closed; empty when all is well.
    CString error;
};

/// Called once for each entry of a plan, as soon as its fate is known.
using RenameReport = std::function<void(Model::PlanIndex entry, const Model::RenameResult& result)>;

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

/// The batches of the user. One is worked on at a time, by one program: the others are told so in the summary's error.
class Batches
{
public:
    /// Keeps the journals in the folder that the environment variable VYR_JOURNAL_DIR names, else in the folder
    /// "journal" of the product's folder for what a program keeps of its doings.
    Batches();
    /// For tests: acts through `files` and keeps the journals in `journalFolder`.
    Batches(FileOperations& files, const CString& journalFolder);

    /// Does `plan`, which has an entry: journal on disk first, nothing ever overwritten, afterwards a look at the
    /// folders that do not tell every two names apart.
    /// @param report  called once for each entry, unless the summary's error says that nothing was begun.
    BatchSummary Apply(Model::RenamePlan plan, const RenameReport& report, const StopRequest& isStopAsked);

    /// The batches in the journal, the latest first.
    [[nodiscard]] std::vector<BatchInformation> List() const;
    /// Undoes the batch `number`, or the latest one that is not undone, in reverse order. What the batch had
    /// not done is not reported.
    BatchSummary Undo(std::optional<std::uint32_t> number, const BatchEntryReport& report,
                      const StopRequest& isStopAsked);

    /// The batch that was cut off, if there is one that no running program works on.
    [[nodiscard]] std::optional<BatchInformation> FindCutOff() const;
    /// Ends the batch that was cut off.
    BatchSummary Recover(Recovery recovery, const BatchEntryReport& report, const StopRequest& isStopAsked);
    /// Abandons the batch that was cut off, so that others can begin: its files stay as they are, and its journal is
    /// kept under another name. The way out where the journal is damaged, or the files are gone.
    AbandonedJournal AbandonCutOff();

private:
    FileOperations* m_files;
    CString m_journalFolder;
};

} // namespace VyrHost::Batch
