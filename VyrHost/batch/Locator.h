/// @file
/// Finds out from the disk how far the work on a batch came.
#pragma once

#include <VyrHost/batch/FileOperations.h>
#include <VyrHost/batch/JournalText.h>
#include <VyrHost/batch/PlanProgress.h>
#include <VyrHost/model/SlotTable.h>

#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace VyrHost::Batch {

/// What was last done with a batch.
enum class LastWork : std::uint8_t
{
    /// An entry that could be either stands at its new path.
    Applied,
    /// Where an entry could be either, it is not known where it stands.
    Undone,
    /// The same, and a rename may be half done.
    CutOff
};

/// Looks for every entry at its old, its temporary and its new path, and recognises it by its number in the file
/// system, its size and its time; where those have changed (another mount, a program that replaces files when it
/// saves), by what stands at one of the paths alone.
class Locator
{
public:
    /// @param progress is set to what is found.
    Locator(const Journal& journal, PlanProgress& progress, FileOperations& files);

    /// Believes the journal's checkpoint about the entries that stand at their old paths: nothing was done to them.
    void TrustCheckpoint();
    /// Finds the entries that are not kept, and the new folders.
    void Locate(LastWork lastWork);

    [[nodiscard]] bool IsKept(Model::PlanIndex entry) const { return m_isKept[entry]; }
    /// Whether the file was written to, or replaced by another, since the batch.
    [[nodiscard]] bool HasChanged(Model::PlanIndex entry) const { return m_hasChanged[entry]; }
    /// Why an entry was not found; 0 when nothing looks like it.
    [[nodiscard]] std::uint32_t Error(Model::PlanIndex entry) const { return m_errors[entry]; }

private:
    /// How sure it is that what stands somewhere is the entry, rising. The number alone says less than size and time:
    /// some file systems give their numbers anew at each mount.
    enum class Match : std::uint8_t
    {
        None,
        Kind,
        Number,
        Content,
        All
    };
    /// What stands at one of an entry's places.
    struct Candidate
    {
        Location location = Location::Unknown;
        VyrPlatform::FileState state;
        Match match = Match::None;
    };

    void LocateNewFolder(Model::PlanIndex folder);
    void LocateEntry(Model::PlanIndex entry, LastWork lastWork);
    void LocateByName(Model::PlanIndex entry);
    [[nodiscard]] Candidate LookAt(Model::PlanIndex entry, Location location);
    [[nodiscard]] Match Compare(Model::PlanIndex entry, const VyrPlatform::FileState& state) const;
    [[nodiscard]] static Candidate Choose(const Candidate& before, const Candidate& after, LastWork lastWork);
    [[nodiscard]] bool IsHalfRenamed(Model::PlanIndex entry, const Candidate& kept, const Candidate& left) const;
    [[nodiscard]] bool EndHalfRename(Model::PlanIndex entry, const Candidate& kept, const Candidate& left);
    void SetLocation(Model::PlanIndex entry, const Candidate& candidate);
    [[nodiscard]] const std::unordered_set<CString>& NamesIn(Model::PlanIndex folder);

    const Journal& m_journal;
    PlanProgress& m_progress;
    FileOperations& m_files;
    FolderCache m_folders;
    std::vector<bool> m_hasTemporaryName;
    /// For each new folder whether the batch has made it, if it is there.
    std::vector<bool> m_isMade;
    std::vector<bool> m_isKept;
    std::vector<bool> m_hasChanged;
    std::vector<std::uint32_t> m_errors;
    /// The places of the entries that are found: hard links make two entries look alike.
    Model::SlotTable<Model::PlanIndex> m_taken;
    std::unordered_map<Model::PlanIndex, std::unordered_set<CString>> m_names;
};

} // namespace VyrHost::Batch
