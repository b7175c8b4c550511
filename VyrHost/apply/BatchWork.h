/// @file
/// One batch at work: its journal, where its entries stand, and what is done to them.
#pragma once

#include <VyrHost/apply/Batches.h>
#include <VyrHost/apply/Executor.h>
#include <VyrHost/apply/PlanProgress.h>
#include <VyrHost/journal/JournalFolder.h>

#include <vector>

namespace VyrHost {

class BatchWork
{
public:
    /// @param folder is locked.
    /// @param summary gets what is done, and why something is not.
    BatchWork(FileOperations& files, JournalFolder& folder, Journal journal, BatchSummary& summary);
    BatchWork(const BatchWork&) = delete;
    BatchWork& operator=(const BatchWork&) = delete;

    /// For a new batch, whose journal says what stands at the old paths: leaves out what is not there any more, and
    /// writes the journal. From then on the batch can be recovered.
    /// @return false when the journal cannot be written.
    [[nodiscard]] bool Begin();

    /// For a batch from the journal: finds out where everything stands.
    /// @return false when nothing of it is found.
    [[nodiscard]] bool Locate(const JournalFile& file);
    /// Has it on the disk that the batch is being taken back.
    /// @return false when that cannot be written.
    [[nodiscard]] bool BeginTakingBack();

    /// Does what is left to do in `direction`, looks at the folders, and closes the journal.
    void Run(Direction direction, const Executor::Report& report, const StopRequest& isStopAsked);

    /// After Locate: what is said of an entry.
    [[nodiscard]] BatchEntry Describe(PlanIndex entry, const RenameResult& result) const;

private:
    void CheckSource(PlanIndex entry);
    void LeaveOut(PlanIndex entry, const RenameResult& result);
    void Keep(PlanIndex entry);
    void KeepJournalInPlace();
    void KeepInPlace(PlanIndex entry, const CString& reason);
    bool MayGoOn(std::uint32_t journalError);
    void CheckListings(Standing standing);
    void Close(Direction direction);
    [[nodiscard]] JournalMark MakeMark(Direction direction) const;
    [[nodiscard]] bool IsAny(Standing standing) const;
    [[nodiscard]] bool HasMadeFolder() const;
    void End(const JournalMark& mark, BatchPhase phase);
    void Forget();
    void NameKeptFolders(const JournalMark& mark);

    FileOperations& m_files;
    JournalFolder& m_folder;
    Journal m_journal;
    JournalFile m_file;
    PlanProgress m_progress;
    /// How everything stands before the batch, and after it.
    PlanProgress m_before;
    PlanProgress m_after;
    Executor m_executor;
    /// Entries that the work leaves alone, and does not speak of.
    std::vector<bool> m_isKept;
    std::vector<bool> m_hasChanged;
    BatchSummary& m_summary;
};

} // namespace VyrHost
