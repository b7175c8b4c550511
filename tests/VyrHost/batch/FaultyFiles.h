// For tests: file operations that fail, or end the program, at a chosen moment.
#pragma once

#include <VyrHost/batch/FileOperations.h>

#include <functional>
#include <string>

namespace VyrTests {

/// A change to the disk: the operation, and the name that it is done to.
struct FileChange
{
    enum class Kind
    {
        Rename,
        MakeFolder,
        RemoveFolder,
        DropSecondName,
        /// Creates a journal.
        WriteNew,
        Append,
        RenameFile,
        Remove,
        Flush
    };
    Kind kind;
    /// The old name of an entry, or the path of a journal file.
    CString name;
    CString newName;
};

/// Passes all operations on to the system, and calls two functions around each change.
class FaultyFiles final : public VyrHost::Batch::FileOperations
{
public:
    /// Called before a change, with its number from 0. Returns an error code with which the change fails, or 0 to do
    /// it. May throw, as if the program ended before the change.
    std::function<std::uint32_t(const FileChange& change, std::size_t number)> before;
    /// Called after a change that succeeded. May throw, as if the program ended after it.
    std::function<void(const FileChange& change, std::size_t number)> after;
    /// Replaces the system's answer to how folders compare names.
    std::function<VyrHostPlatform::NameFolding(const CString& path)> folding;

    /// The number of changes so far.
    [[nodiscard]] std::size_t Changes() const { return m_changes; }

    std::unique_ptr<VyrHost::Batch::FolderOperations> OpenFolder(const CString& path, std::uint32_t& error) override;
    std::uint32_t List(const CString& path, const std::function<void(const CString&)>& use) override;
    VyrHostPlatform::NameFolding GetNameFolding(const CString& path) override;
    std::uint32_t WriteNew(const CString& path, const VyrHostPlatform::DurableFile::Content& content) override;
    std::uint32_t Append(const CString& path, std::string_view content) override;
    std::uint32_t RenameFile(const CString& from, const CString& to) override;
    std::uint32_t Remove(const CString& path) override;
    std::uint32_t FlushFolder(const CString& path) override;

    /// Calls `act` for `change`, between the two functions.
    std::uint32_t Change(const FileChange& change, const std::function<std::uint32_t()>& act);

private:
    std::size_t m_changes = 0;
};

} // namespace VyrTests
