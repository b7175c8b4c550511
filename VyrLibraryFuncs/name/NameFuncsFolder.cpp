// The copying and moving of folder trees, with a record of every folder that comes into being.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/FolderUtils.h>
#include <VyrPlatform/files/CFileFind.h>
#include <VyrPlatform/files/FileCopy.h>
#include <VyrPlatform/process/MessageQueue.h>

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::FileUtils;
using VyrLibraryUtils::FolderUtils;

namespace {

using Records = std::list<VyrLibraryFuncs::NameFuncs::RENAMEITEM>;

/// Calls `onFolder` or `onFile` for each entry of `source`, with its path and the path that it gets in `destination`.
/// @return false when `source` cannot be searched. It is not held open when this returns.
template <class OnFolder, class OnFile>
bool WalkFolder(const CString& source, const CString& destination, OnFolder onFolder, OnFile onFile)
{
    CFileFind finder;
    // An empty path joined with the pattern would name the current folder.
    if (source.IsEmpty() || !finder.FindFile(FileUtils::GetCombinePath(source, u"*.*")))
        return false;
    for (bool more = true; more;) {
        more = finder.FindNextFile();
        // A tree is not left half done: here a stop ends nothing.
        static_cast<void>(VyrPlatform::MessageQueue::DrainOne());
        if (finder.IsDots())
            continue;
        const CString name = finder.GetFileName();
        const CString from = FileUtils::GetCombinePath(finder.GetRoot(), name);
        const CString to = FileUtils::GetCombinePath(destination, name);
        if (finder.IsDirectory())
            onFolder(from, to);
        else
            onFile(from, to);
    }
    return true;
}

/// Makes the folder `destination` unless something stands there, and records it with the times of `source`.
void CreateFolderFor(const CString& source, const CString& destination, Records* records)
{
    if (FileUtils::IsFileExist(destination) || !FolderUtils::CreateFolderPathExists(destination) || !records)
        return;
    records->push_back(
        {source, destination, DateTimeUtils::GetDateCreated(source), DateTimeUtils::GetDateModified(source)});
}

int CopyTree(const CString& source, const CString& destination, Records* records)
{
    int result = 0;
    WalkFolder(
        source, destination,
        [&](const CString& from, const CString& to) {
            CreateFolderFor(from, to, records);
            result = CopyTree(from, to, records);
        },
        [&](const CString& from, const CString& to) {
            if (VyrPlatform::FileCopy::Copy(from, to) == 0)
                result = 1;
            else if (FileUtils::IsFileExist(from)) // An entry that has gone meanwhile counts as none.
                result = 0;
        });
    return result;
}

int MoveTree(const CString& source, const CString& destination, Records* records)
{
    const bool isSearched = WalkFolder(
        source, destination,
        [&](const CString& from, const CString& to) {
            CreateFolderFor(from, to, records);
            MoveTree(from, to, records);
        },
        // What cannot be moved stays, and shows in that its folder cannot be removed.
        [](const CString& from, const CString& to) { static_cast<void>(VyrPlatform::FileCopy::Move(from, to)); });
    return isSearched && VyrPlatform::FileCopy::RemoveEmptyFolder(source) == 0 ? 1 : 0;
}

} // namespace

namespace VyrLibraryFuncs {

int NameFuncs::CopyFolder(CString source, CString destination, std::list<RENAMEITEM>* records)
{
    return CopyTree(source, destination, records);
}

int NameFuncs::MoveFolder(CString source, CString destination, std::list<RENAMEITEM>* records)
{
    return MoveTree(source, destination, records);
}

} // namespace VyrLibraryFuncs
