// For tests: files on the disk, batches of renames of them, and the results.
#pragma once

#include <VyrHost/batch/Batches.h>
#include <VyrHost/batch/FileOperations.h>
#include <tests/VyrHost/rename/PathRenames.h>

#include <tests/support/ScratchFolder.h>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VyrTests {

/// The entries below a folder by their paths, written with slashes: a file's content, or "<folder>".
using FolderSnapshot = std::map<std::string, std::string>;

/// Journals in `journalFolder`, no waiting for the lock, and no kind of change but the rename.
[[nodiscard]] VyrHost::Batch::BatchSettings SettingsIn(const CString& journalFolder);

class BatchScene
{
    // First, since the members below are created in it.
    ScratchFolder m_scratch;
    VyrHost::Batch::FileOperations& m_files;

public:
    explicit BatchScene(VyrHost::Batch::FileOperations& files = VyrHost::Batch::SystemFiles(),
                        const VyrHost::Model::ChangeKinds& kinds = {});

    /// The full path of `name` (with slashes) among the files.
    [[nodiscard]] CString Path(std::u16string_view name) const;
    /// Creates a file whose content is its name here.
    void Write(std::u16string_view name) const;
    void Write(std::u16string_view name, std::string_view content) const;
    void MakeFolder(std::u16string_view name) const;

    /// Adds to the list of renames.
    BatchScene& Rename(std::u16string_view from, std::u16string_view to,
                       VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::File);
    BatchScene& RenameFolder(std::u16string_view from, std::u16string_view to);
    BatchScene& NewFolder(std::u16string_view name);

    /// The plan of the list.
    [[nodiscard]] VyrHost::Rename::PlannerResult Plan() const;
    /// Plans and applies the list; the outcomes are in `results`.
    VyrHost::Batch::BatchSummary Apply(const VyrHost::Batch::StopRequest& isStopAsked = {});
    /// @param number the batch; without it the latest that can be undone.
    VyrHost::Batch::BatchSummary Undo(std::optional<std::uint32_t> number = {},
                                      const VyrHost::Batch::StopRequest& isStopAsked = {});
    /// Redoes what the undo `number` has undone.
    VyrHost::Batch::BatchSummary Redo(std::uint32_t number);
    VyrHost::Batch::BatchSummary Recover(VyrHost::Batch::Recovery recovery);

    /// All files and folders at present.
    [[nodiscard]] FolderSnapshot Now() const;
    [[nodiscard]] CString JournalFolder() const { return m_scratch.Path(u"journal"); }
    /// The names of the files in the folder of the journals, without the lock.
    [[nodiscard]] std::vector<std::string> JournalFiles() const;

    PathRenames list;
    VyrHost::Batch::Batches batches;
    /// The outcomes of the last Apply, by the indexes of the renames.
    std::vector<VyrHost::Model::Outcome> results;
    /// The entries of the last Undo or Recover.
    std::vector<VyrHost::Batch::BatchEntry> entries;
};

/// The sorted contents of the files of `tree`, which no rename may change.
[[nodiscard]] std::vector<std::string> ContentsOf(const FolderSnapshot& tree);

} // namespace VyrTests
