// Takes snapshots without recursion, since a tree may be deeper than the stack.
#include <VyrHost/foldercopy/FolderSnapshot.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FolderListing.h>
#include <VyrPlatform/files/FullPath.h>

#include <algorithm>
#include <utility>

namespace VyrHost::FolderCopy {

namespace {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FolderListing;
namespace FileSystem = VyrPlatform::FileSystem;
namespace FileTimes = VyrPlatform::FileTimes;

SnapshotKind KindOf(const FolderListing& listing)
{
    if (listing.IsLink())
        return SnapshotKind::Link;
    if (listing.Kind() == FileSystem::Kind::Folder)
        return SnapshotKind::Folder;
    return listing.Kind() == FileSystem::Kind::File ? SnapshotKind::File : SnapshotKind::Other;
}

SnapshotFolder FolderAt(const CString& root, const CString& path)
{
    const CString full = FileUtils::GetCombinePath(root, path);
    SnapshotFolder folder;
    folder.path = path;
    folder.created = FileTimes::GetCreated(full).value_or(0);
    folder.modified = FileTimes::GetModified(full).value_or(0);
    folder.traits = VyrHostPlatform::GetFolderTraits(full);
    return folder;
}

SnapshotEntry EntryAt(const FolderListing& listing, const CString& folder)
{
    SnapshotEntry entry;
    entry.name = listing.Name();
    entry.kind = KindOf(listing);
    if (entry.kind != SnapshotKind::File && entry.kind != SnapshotKind::Link)
        return entry;
    const CString path = FileUtils::GetCombinePath(folder, entry.name);
    const FileSystem::Entry found = FileSystem::Query(path);
    entry.size = found.kind == FileSystem::Kind::File ? found.size : -1;
    if (entry.kind == SnapshotKind::Link)
        entry.linkTarget = FileSystem::GetLinkTarget(path).value_or(CString());
    return entry;
}

void ScanFolder(FolderSnapshot& tree, std::size_t number)
{
    const CString path = tree.folders[number].path;
    const CString full = FileUtils::GetCombinePath(tree.root, path);
    const std::size_t first = tree.entries.size();
    FolderListing listing(full);
    while (listing.Next()) {
        SnapshotEntry entry = EntryAt(listing, full);
        if (entry.kind == SnapshotKind::Folder) {
            entry.folder = tree.folders.size();
            tree.folders.push_back(FolderAt(tree.root, FileUtils::GetCombinePath(path, entry.name)));
        }
        tree.entries.push_back(std::move(entry));
    }
    SnapshotFolder& folder = tree.folders[number];
    folder.error = listing.Error();
    folder.firstEntry = first;
    folder.entryCount = tree.entries.size() - first;
}

} // namespace

CString FolderOf(const CString& fullPath)
{
    return VyrPlatform::GetFullPath(FileUtils::GetSplitDirPath(fullPath));
}

FolderSnapshot TakeSnapshot(const CString& root)
{
    FolderSnapshot tree;
    tree.root = root;
    tree.folders.push_back(FolderAt(root, CString()));
    for (std::size_t number = 0; number < tree.folders.size(); ++number)
        ScanFolder(tree, number);
    return tree;
}

Model::TreeSize SizeOf(const FolderSnapshot& tree)
{
    Model::TreeSize size;
    size.folders = tree.folders.size();
    size.files = tree.entries.size() - (tree.folders.size() - 1);
    for (const SnapshotEntry& entry : tree.entries)
        if (entry.kind == SnapshotKind::File)
            size.bytes += std::max<std::int64_t>(entry.size, 0);
    return size;
}

} // namespace VyrHost::FolderCopy
