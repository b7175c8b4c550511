// Copies and moves folder trees, and records every created folder.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/FolderUtils.h>
#include <VyrPlatform/files/CFileFind.h>
#include <VyrPlatform/files/DeepWalk.h>
#include <VyrPlatform/files/FileCopy.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FullPath.h>
#include <VyrPlatform/process/MessageQueue.h>

#include <cstddef>
#include <utility>
#include <vector>

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::FileUtils;
using VyrLibraryUtils::FolderUtils;
using VyrPlatform::FileCopy::OwnerAccess;

namespace FileCopy = VyrPlatform::FileCopy;

namespace {

using Records = std::list<VyrLibraryFuncs::NameFuncs::RENAMEITEM>;

enum class Operation : bool
{
    Copy,
    Move
};

struct Entry
{
    CString name;
    bool isFolder = false;
    bool isDots = false;
};

/// The entries of `folder` in the system's order; none when it cannot be searched.
std::vector<Entry> ReadEntries(const CString& folder)
{
    std::vector<Entry> entries;
    CFileFind finder;
    // An empty path joined with the pattern would name the current folder.
    if (folder.IsEmpty() || !finder.FindFile(FileUtils::GetCombinePath(folder, u"*.*")))
        return entries;
    for (bool more = true; more;) {
        more = finder.FindNextFile();
        entries.push_back({finder.GetFileName(), finder.IsDirectory(), finder.IsDots()});
    }
    return entries;
}

CString ParentOf(const CString& path)
{
    const CString folder = FileUtils::GetSplitDirPath(path);
    return folder.GetLength() == path.GetLength() ? CString() : VyrPlatform::GetFullPath(folder);
}

/// Whether `path`, whose last parts may not exist, is the folder `folder` or inside it. An empty path is the current
/// folder.
bool IsInside(const CString& path, const CString& folder)
{
    const VyrPlatform::FileState wanted = VyrPlatform::LookAtFile(FileUtils::GetCombinePath(folder, u"."));
    if (wanted.error != 0)
        return false;
    CString above = VyrPlatform::GetFullPath(path.IsEmpty() ? CString(u".") : path);
    while (!above.IsEmpty() && !FileUtils::IsFileExist(above)) {
        // Nobody can tell where a way out of a folder leads that does not exist yet.
        if (FileUtils::GetSplitFileName(above) == u"..")
            return true;
        above = ParentOf(above);
    }
    // In a real path, which has no links, the parent of a name is the folder before it.
    if (const CString real = VyrPlatform::GetRealPath(above); !real.IsEmpty())
        above = real;
    while (!above.IsEmpty() && VyrPlatform::LookAtFile(above).identity != wanted.identity)
        above = ParentOf(above);
    return !above.IsEmpty();
}

/// Creates the folder `destination` unless it exists, and records it with the times of `source`.
/// @return whether it was created.
bool CreateFolderFor(const CString& source, const CString& destination, Records* records)
{
    if (FileUtils::IsFileExist(destination) || !FolderUtils::CreateFolderPathExists(destination))
        return false;
    // Entries can be created in it, and others may not read more of it than of the source.
    static_cast<void>(FileCopy::CopyFolderMode(source, destination, OwnerAccess::Full));
    if (records)
        records->push_back(
            {source, destination, DateTimeUtils::GetDateCreated(source), DateTimeUtils::GetDateModified(source)});
    return true;
}

/// `folder` with exactly one separator at its end.
CString WithOneSeparator(const CString& folder)
{
    return FileUtils::GetSplitDirPath(FileUtils::GetCombinePath(folder, u"*"));
}

/// Walks a tree without recursion: neither the stack nor the limit of open files bounds its depth.
class TreeWalk
{
public:
    TreeWalk(Operation operation, Records* records) : m_operation(operation), m_records(records) {}

    /// Copies or moves the entries of `source` into `destination`.
    /// @return the result of CopyFolder or MoveFolder.
    int Run(const CString& source, const CString& destination)
    {
        const VyrPlatform::DeepWalk deepWalk;
        Enter(WithOneSeparator(source), WithOneSeparator(destination), false);
        while (!m_folders.empty())
            Step();
        return m_result;
    }

private:
    /// A folder whose entries are being handled. Its paths are beginnings of those of the innermost folder.
    struct Folder
    {
        int sourceLength = 0;
        int destinationLength = 0;
        std::vector<Entry> entries;
        std::size_t next = 0;
        bool wasCreated = false;
        /// The result of the last copy in it.
        int result = 0;
    };

    void Enter(const CString& source, const CString& destination, bool wasCreated)
    {
        m_source = source;
        m_destination = destination;
        m_folders.push_back({source.GetLength(), destination.GetLength(), ReadEntries(source), 0, wasCreated});
    }

    /// Handles one entry of the innermost folder, or leaves that folder.
    void Step()
    {
        Folder& folder = m_folders.back();
        if (folder.next == folder.entries.size()) {
            Leave();
            return;
        }
        const Entry entry = folder.entries[folder.next++];
        // A stop has no effect here, so that no tree is left half done.
        static_cast<void>(VyrPlatform::MessageQueue::DrainOne());
        if (entry.isDots)
            return;
        const CString from = FileUtils::GetCombinePath(m_source, entry.name);
        const CString to = FileUtils::GetCombinePath(m_destination, entry.name);
        if (entry.isFolder)
            TransferFolder(from, to, folder.result);
        else
            TransferFile(from, to, folder.result);
    }

    void TransferFolder(const CString& from, const CString& to, int& result)
    {
        const bool isCreated = CreateFolderFor(from, to, m_records);
        // Only a link can lead from the destination, which is not inside the source, into it.
        if (!isCreated && VyrPlatform::FileSystem::Query(to).isLink && IsInside(to, from))
            result = 0;
        else
            Enter(from, to, isCreated);
    }

    void TransferFile(const CString& from, const CString& to, int& result) const
    {
        if (m_operation == Operation::Move)
            // An entry that cannot be moved stays, so its folder cannot be removed.
            static_cast<void>(FileCopy::Move(from, to));
        else if (FileCopy::Copy(from, to) == 0)
            result = 1;
        else if (FileUtils::IsFileExist(from)) // An entry that has gone meanwhile counts as none.
            result = 0;
    }

    void Leave()
    {
        const Folder folder = std::move(m_folders.back());
        m_folders.pop_back();
        if (folder.wasCreated)
            static_cast<void>(FileCopy::CopyFolderMode(m_source, m_destination, OwnerAccess::AsInSource));
        m_result = folder.result;
        if (m_operation == Operation::Move)
            m_result = !folder.entries.empty() && FileCopy::RemoveEmptyFolder(m_source) == 0 ? 1 : 0;
        if (m_folders.empty())
            return;
        m_folders.back().result = m_result;
        m_source = m_source.Left(m_folders.back().sourceLength);
        m_destination = m_destination.Left(m_folders.back().destinationLength);
    }

    Operation m_operation;
    Records* m_records;
    /// The paths of the innermost folder.
    CString m_source;
    CString m_destination;
    /// The present folder is the last, after its parents.
    std::vector<Folder> m_folders;
    int m_result = 0;
};

int Transfer(Operation operation, const CString& source, const CString& destination, Records* records)
{
    if (source.IsEmpty() || IsInside(destination, source))
        return 0;
    return TreeWalk(operation, records).Run(source, destination);
}

} // namespace

namespace VyrLibraryFuncs {

int NameFuncs::CopyFolder(CString source, CString destination, std::list<RENAMEITEM>* records)
{
    return Transfer(Operation::Copy, source, destination, records);
}

int NameFuncs::MoveFolder(CString source, CString destination, std::list<RENAMEITEM>* records)
{
    return Transfer(Operation::Move, source, destination, records);
}

} // namespace VyrLibraryFuncs
