/// @file
/// The work on one batch: its journal, where its entries are, and what is done to them.
#pragma once

#include <VyrHost/batch/Batches.h>
#include <VyrHost/batch/Executor.h>
#include <VyrHost/batch/JournalFolder.h>
#include <VyrHost/batch/JournalText.h>
#include <VyrHost/batch/PlanProgress.h>

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

namespace VyrHost::Batch {

/// Why an entry is left alone whose file has changed since it was listed.
inline constexpr const char16_t* noLongerAsListed = u"it is no longer what it was when it was listed";

class ChangeWork
{
public:
    using Report = std::function<void(std::size_t index, const Model::Outcome& result)>;

    /// @param progress says where the files are while the same batch renames them.
    ChangeWork(const Journal& journal, const PlanProgress& progress);

    /// Takes over from the journal's checkpoint which changes are not done: they are left alone and not reported.
    void TrustCheckpoint();
    /// The read-only files that may be made writable during the work.
    [[nodiscard]] std::vector<ProtectedFile> FindProtected() const;
    /// Finds out how far each change is done.
    /// @param repairs  whether the work was cut off and the files may be changed (Change::Repair).
    void Locate(bool repairs);
    /// Whether a change that is not kept is done or can be done.
    [[nodiscard]] bool IsAnyFound() const;

    /// Applies the changes, or undoes them in reverse order. Keeps what another program has changed since. Two threads
    /// share many changes if each is known to be of a different file.
    /// @param followRenames  which changes: those that follow the renames, or the others.
    /// @param report called once for each change, in order.
    /// @param isStopAsked called before each change, or before many that two threads share.
    /// @return false when it was stopped.
    bool Run(Direction direction, bool followRenames, const Report& report, const Executor::StopRequest& isStopAsked);
    /// After Locate: what Run would report for a change.
    [[nodiscard]] Model::Outcome Predict(std::size_t index, Direction direction) const;

    [[nodiscard]] bool IsKept(std::size_t index) const { return m_isKept[index]; }
    /// Whether it is done, or may prove to be at the next attempt to undo it.
    [[nodiscard]] bool MayBeDone(std::size_t index, Direction direction) const;
    [[nodiscard]] bool IsAnyDone() const;
    /// The present path of the file; if it was not found, its path before the batch.
    [[nodiscard]] CString PathOf(std::size_t index) const;

private:
    void ProtectAgain() const;
    [[nodiscard]] bool IsDone(std::size_t index) const;
    [[nodiscard]] std::vector<std::size_t> FindToDo(Direction direction, bool followRenames) const;
    [[nodiscard]] bool AreOfDifferentFiles() const;
    [[nodiscard]] Model::Outcome Perform(std::size_t index, Direction direction);

    const Journal& m_journal;
    const PlanProgress& m_progress;
    std::vector<Model::ChangeLook> m_looks;
    std::vector<bool> m_isKept;
    /// For each change, the rename of the same file.
    std::vector<Model::PlanIndex> m_renames;
};

class BatchWork
{
public:
    /// @param folder must be locked.
    /// @param summary gets what is done, and why something is not.
    BatchWork(FileOperations& files, JournalFolder& folder, Journal journal, BatchSummary& summary);
    BatchWork(const BatchWork&) = delete;
    BatchWork& operator=(const BatchWork&) = delete;

    /// For a new batch: leaves out entries that are no longer at their old paths, and writes the journal. From then on
    /// the batch can be recovered.
    /// @return false when the journal cannot be written.
    [[nodiscard]] bool Begin();

    /// For a batch from the journal that is to be undone, redone or recovered: finds its entries and folders.
    /// @param isPreview  changes nothing on the disk, even if the work on the batch was cut off.
    /// @return false when nothing is found.
    [[nodiscard]] bool Locate(const JournalFile& file, Direction direction, bool isPreview = false);
    /// Notes on the disk that the recovery of the batch has begun.
    /// @return false when that cannot be written.
    [[nodiscard]] bool BeginRecovery();
    /// Notes on the disk that the undo has begun.
    /// @return false when that cannot be written.
    [[nodiscard]] bool BeginUndo();
    /// Notes on the disk that the redo has begun.
    /// @return false when that cannot be written.
    [[nodiscard]] bool BeginRedo();

    /// Called with the index of an entry of the plan; changes of other kinds have the indexes after the entries.
    using Report = std::function<void(std::size_t index, const Model::Outcome& result)>;
    /// Does what is left to do in `direction`, checks the folders, and closes the journal.
    void Run(Direction direction, const Report& report, const StopRequest& isStopAsked);
    /// After Locate: reports what Run would do, as far as can be predicted.
    void Predict(Direction direction, const Report& report);

    /// After Locate: the description of an entry or a change.
    [[nodiscard]] BatchEntry Describe(std::size_t index, const Model::Outcome& result) const;

private:
    void CheckSource(Model::PlanIndex entry);
    void LeaveOut(Model::PlanIndex entry, const Model::Outcome& result);
    void Keep(Model::PlanIndex entry);
    void KeepJournalInPlace();
    bool MayGoOn(std::uint32_t journalError);
    [[nodiscard]] std::uint32_t NoteProtected();
    [[nodiscard]] Report CountAnd(const Report& report);
    [[nodiscard]] Model::Outcome PredictEntry(Model::PlanIndex entry, Location goal, Model::PlanIndex inPlace);
    /// Flushes the names of the files that were replaced.
    void FlushReplaced();
    void CheckListings(Location location);
    void Close(Direction direction);
    [[nodiscard]] Checkpoint MakeCheckpoint(Direction direction) const;
    [[nodiscard]] bool IsAnyDone() const;
    [[nodiscard]] bool HasMadeFolder() const;
    [[nodiscard]] bool IsMadeFolder(const Model::Place& place) const;
    void End(const Checkpoint& checkpoint, BatchPhase phase);
    void Forget();
    void NameKeptFolders(const Checkpoint& checkpoint);

    FileOperations& m_files;
    JournalFolder& m_folder;
    Journal m_journal;
    JournalFile m_file;
    PlanProgress m_progress;
    /// The state before the batch, and after it.
    PlanProgress m_before;
    PlanProgress m_after;
    Executor m_executor;
    ChangeWork m_changes;
    /// Why entries were not found.
    std::unordered_map<Model::PlanIndex, Model::Outcome> m_notFound;
    /// Entries that the work leaves alone and does not report.
    std::vector<bool> m_isKept;
    std::vector<bool> m_hasChanged;
    BatchSummary& m_summary;
};

} // namespace VyrHost::Batch
