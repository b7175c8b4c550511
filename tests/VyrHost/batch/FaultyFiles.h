// For tests: file operations that fail, or end the program, at a chosen moment.
#pragma once

#include <VyrHost/batch/FileOperations.h>

#include <functional>
#include <string>

namespace VyrTests {

/// What a change to the disk is, and what it is done to.
struct FileChange
{
    enum class Kind
    {
        Rename,
        MakeFolder,
        RemoveFolder,
        DropSecondName,
        /// Of the journal.
        WriteNew,
        Append,
        RenameFile,
        Remove,
        Flush
    };
    Kind kind;
    /// An entry's name (its old one), or the path of a journal file.
    CString name;
    CString newName;
};

/// Passes everything on to the system, and calls two functions around every change.
class FaultyFiles final : public VyrHost::Batch::FileOperations
{
public:
    /// Called before a change, with its number from 0 on: an error code to be given instead of doing it, or 0. May
    /// throw, as if the program ended before the change.
    std::function<std::uint32_t(const FileChange& change, std::size_t number)> before;
    /// Called after a change that succeeded. May throw, as if the program ended after it.
    std::function<void(const FileChange& change, std::size_t number)> after;
    /// Instead of the system's answer to how folders compare names.
    std::function<VyrHostPlatform::NameFolding(const CString& path)> folding;

    /// How many changes were asked for.
    [[nodiscard]] std::size_t Changes() const { return m_changes; }

    std::unique_ptr<VyrHost::Batch::FolderOperations> OpenFolder(const CString& path, std::uint32_t& error) override;
    std::uint32_t List(const CString& path, const std::function<void(const CString&)>& use) override;
    VyrHostPlatform::NameFolding GetNameFolding(const CString& path) override;
    std::uint32_t WriteNew(const CString& path, const VyrHostPlatform::DurableFile::Content& content) override;
    std::uint32_t Append(const CString& path, std::string_view content) override;
    std::uint32_t RenameFile(const CString& from, const CString& to) override;
    std::uint32_t Remove(const CString& path) override;
    std::uint32_t FlushFolder(const CString& path) override;

    /// Does `change` by `act`, between the two functions.
    std::uint32_t Change(const FileChange& change, const std::function<std::uint32_t()>& act);

private:
    std::size_t m_changes = 0;
};

} // namespace VyrTests
