// For tests: a tree of files on the disk, batches of renames in it, and what they leave.
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

/// What stands at each path below a folder, written with slashes: a file's content, or "<folder>".
using FolderSnapshot = std::map<std::string, std::string>;

/// Journals in `journalFolder`, no waiting, the rename as the only kind of change.
[[nodiscard]] VyrHost::Batch::BatchSettings SettingsIn(const CString& journalFolder);

class BatchScene
{
    // The others need it while they are made.
    ScratchFolder m_scratch;
    VyrHost::Batch::FileOperations& m_files;

public:
    explicit BatchScene(VyrHost::Batch::FileOperations& files = VyrHost::Batch::SystemFiles(),
                        const VyrHost::Model::ChangeKinds& kinds = {});

    /// The full path of `name` (with slashes) among the files.
    [[nodiscard]] CString Path(std::u16string_view name) const;
    /// Makes a file whose content is its name here.
    void Write(std::u16string_view name) const;
    void Write(std::u16string_view name, std::string_view content) const;
    void MakeFolder(std::u16string_view name) const;

    /// Adds to the list of renames.
    BatchScene& Rename(std::u16string_view from, std::u16string_view to,
                       VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::File);
    BatchScene& RenameFolder(std::u16string_view from, std::u16string_view to);
    BatchScene& NewFolder(std::u16string_view name);

    /// The list as the planner plans it.
    [[nodiscard]] VyrHost::Rename::PlannerResult Plan() const;
    /// Applies what the planner makes of the list; the results stand in `results`.
    VyrHost::Batch::BatchSummary Apply(const VyrHost::Batch::StopRequest& isStopAsked = {});
    /// @param number  the latest that can be undone when it is not given.
    VyrHost::Batch::BatchSummary Undo(std::optional<std::uint32_t> number = {},
                                      const VyrHost::Batch::StopRequest& isStopAsked = {});
    /// Does again what the undo `number` has undone.
    VyrHost::Batch::BatchSummary Redo(std::uint32_t number);
    VyrHost::Batch::BatchSummary Recover(VyrHost::Batch::Recovery recovery);

    /// All files and folders as they are now.
    [[nodiscard]] FolderSnapshot Now() const;
    [[nodiscard]] CString JournalFolder() const { return m_scratch.Path(u"journal"); }
    /// The names of the files in the journal's folder, without the lock.
    [[nodiscard]] std::vector<std::string> JournalFiles() const;

    PathRenames list;
    VyrHost::Batch::Batches batches;
    /// Of the last Apply, by the renames' indexes.
    std::vector<VyrHost::Model::Outcome> results;
    /// Of the last Undo or Recover.
    std::vector<VyrHost::Batch::BatchEntry> entries;
};

/// The sorted contents of the files of `tree`: what may never change, whatever happens to names.
[[nodiscard]] std::vector<std::string> ContentsOf(const FolderSnapshot& tree);

} // namespace VyrTests
