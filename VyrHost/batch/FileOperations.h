/// @file
/// The file operations of the executor and the journal: an interface, so that tests can make any of them fail. And the
/// cache of open folders.
#pragma once

#include <VyrHost/batch/PlanProgress.h>
#include <VyrHostPlatform/DurableFile.h>
#include <VyrHostPlatform/NameFolding.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace VyrHost::Batch {

/// One folder, as VyrHostPlatform::OpenFolder describes it.
class FolderOperations
{
public:
    FolderOperations() = default;
    FolderOperations(const FolderOperations&) = delete;
    FolderOperations& operator=(const FolderOperations&) = delete;
    virtual ~FolderOperations() = default;

    [[nodiscard]] virtual VyrPlatform::FileState Look(std::u16string_view name) = 0;
    /// `target` comes from the same FileOperations.
    [[nodiscard]] virtual std::uint32_t Rename(std::u16string_view name, FolderOperations& target,
                                               std::u16string_view newName) = 0;
    [[nodiscard]] virtual std::uint32_t DropSecondName(std::u16string_view name, FolderOperations& kept,
                                                       std::u16string_view keptName) = 0;
    [[nodiscard]] virtual std::uint32_t MakeFolder(std::u16string_view name) = 0;
    [[nodiscard]] virtual std::uint32_t RemoveEmptyFolder(std::u16string_view name) = 0;
};

/// All results are the system's error codes, 0 for success. Folders may be opened and queried on a second thread.
class FileOperations
{
public:
    FileOperations() = default;
    FileOperations(const FileOperations&) = delete;
    FileOperations& operator=(const FileOperations&) = delete;
    virtual ~FileOperations() = default;

    /// Opens the folder at `path`; null, with `error` set, on failure.
    [[nodiscard]] virtual std::unique_ptr<FolderOperations> OpenFolder(const CString& path, std::uint32_t& error) = 0;
    /// Calls `use` with the name of each entry of the folder at `path`, as stored by the file system.
    [[nodiscard]] virtual std::uint32_t List(const CString& path, const std::function<void(const CString&)>& use) = 0;
    [[nodiscard]] virtual VyrHostPlatform::NameFolding GetNameFolding(const CString& path) = 0;

    // For journal files: VyrHostPlatform/DurableFile.h and RenameNoReplace.
    [[nodiscard]] virtual std::uint32_t WriteNew(const CString& path,
                                                 const VyrHostPlatform::DurableFile::Content& content) = 0;
    [[nodiscard]] virtual std::uint32_t Append(const CString& path, std::string_view content) = 0;
    [[nodiscard]] virtual std::uint32_t RenameFile(const CString& from, const CString& to) = 0;
    [[nodiscard]] virtual std::uint32_t Remove(const CString& path) = 0;
    [[nodiscard]] virtual std::uint32_t FlushFolder(const CString& path) = 0;
};

/// The system's own.
[[nodiscard]] FileOperations& SystemFiles();

/// A folder, or why there is none.
struct OpenedFolder
{
    FolderOperations* folder = nullptr;
    /// The system's error code; 0 when it is not known where the folder is.
    std::uint32_t error = 0;
};

class FolderCache
{
public:
    FolderCache(const PlanProgress& progress, FileOperations& files);

    /// The folder `folder` of the plan at its present path. Valid until two other folders are opened.
    [[nodiscard]] OpenedFolder Open(Model::PlanIndex folder);
    /// Forgets `folder` and the folders in it. Call it when its path changes.
    void Forget(Model::PlanIndex folder);
    /// The state of the entry at `place`.
    [[nodiscard]] VyrPlatform::FileState Look(const Model::Place& place);

private:
    struct Cached
    {
        Model::PlanIndex folder;
        std::unique_ptr<FolderOperations> operations;
    };

    [[nodiscard]] bool IsIn(Model::PlanIndex folder, Model::PlanIndex outer) const;

    const PlanProgress& m_progress;
    FileOperations& m_files;
    /// Most recently used first.
    std::vector<Cached> m_cached;
};

} // namespace VyrHost::Batch
