/// @file
/// Finds out from the disk how far the work on a batch got.
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
    /// An entry that may be at its old or its new path is at its new path.
    Applied,
    /// The location of such an entry is unknown.
    Undone,
    /// The same, and a rename may be half done.
    CutOff
};

/// Searches every entry at its old, its temporary and its new path. Recognises it by its file number, size and time; if
/// these have changed (another mount, a program that replaces files when it saves), by being the only entry at one of
/// the paths.
class Locator
{
public:
    /// @param progress is set to what is found.
    Locator(const Journal& journal, PlanProgress& progress, FileOperations& files);

    /// Takes over from the journal's checkpoint which entries are at their old paths: these are kept.
    void TrustCheckpoint();
    /// Locates the entries that are not kept, and the new folders.
    void Locate(LastWork lastWork);

    [[nodiscard]] bool IsKept(Model::PlanIndex entry) const { return m_isKept[entry]; }
    /// Whether the file was modified or replaced since the batch.
    [[nodiscard]] bool HasChanged(Model::PlanIndex entry) const { return m_hasChanged[entry]; }
    /// The system's error code for an entry that was not found; 0 when no entry matches it.
    [[nodiscard]] std::uint32_t Error(Model::PlanIndex entry) const { return m_errors[entry]; }

private:
    /// How well something on the disk matches the entry, ascending. The number alone says less than size and time: some
    /// file systems assign new numbers at each mount.
    enum class Match : std::uint8_t
    {
        None,
        Kind,
        Number,
        Content,
        All
    };
    /// What was found at one of the paths of an entry.
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
    /// For each new folder, whether the batch made it if it exists.
    std::vector<bool> m_isMade;
    std::vector<bool> m_isKept;
    std::vector<bool> m_hasChanged;
    std::vector<std::uint32_t> m_errors;
    /// The places of the located entries: hard links make two entries look alike.
    Model::SlotTable<Model::PlanIndex> m_taken;
    std::unordered_map<Model::PlanIndex, std::unordered_set<CString>> m_names;
};

} // namespace VyrHost::Batch
