// Takes trees down, folder by folder, without recursion: a tree may be deeper than the stack.
#include <VyrHost/trees/Tree.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FolderListing.h>

#include <algorithm>
#include <utility>

namespace VyrHost {

namespace {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FolderListing;
namespace FileSystem = VyrPlatform::FileSystem;
namespace FileTimes = VyrPlatform::FileTimes;

TreeKind KindOf(const FolderListing& listing)
{
    if (listing.IsLink())
        return TreeKind::Link;
    if (listing.Kind() == FileSystem::Kind::Folder)
        return TreeKind::Folder;
    return listing.Kind() == FileSystem::Kind::File ? TreeKind::File : TreeKind::Other;
}

TreeFolder FolderAt(const CString& root, const CString& path)
{
    const CString full = FileUtils::GetCombinePath(root, path);
    TreeFolder folder;
    folder.path = path;
    folder.created = FileTimes::GetCreated(full).value_or(0);
    folder.modified = FileTimes::GetModified(full).value_or(0);
    folder.traits = VyrHostPlatform::GetFolderTraits(full);
    return folder;
}

TreeEntry EntryAt(const FolderListing& listing, const CString& folder)
{
    TreeEntry entry;
    entry.name = listing.Name();
    entry.kind = KindOf(listing);
    if (entry.kind != TreeKind::File && entry.kind != TreeKind::Link)
        return entry;
    const CString path = FileUtils::GetCombinePath(folder, entry.name);
    const FileSystem::Entry found = FileSystem::Query(path);
    entry.size = found.kind == FileSystem::Kind::File ? found.size : -1;
    if (entry.kind == TreeKind::Link)
        entry.linkTarget = FileSystem::GetLinkTarget(path).value_or(CString());
    return entry;
}

void ScanFolder(Tree& tree, std::size_t number)
{
    const CString path = tree.folders[number].path;
    const CString full = FileUtils::GetCombinePath(tree.root, path);
    const std::size_t first = tree.entries.size();
    FolderListing listing(full);
    while (listing.Next()) {
        TreeEntry entry = EntryAt(listing, full);
        if (entry.kind == TreeKind::Folder) {
            entry.folder = tree.folders.size();
            tree.folders.push_back(FolderAt(tree.root, FileUtils::GetCombinePath(path, entry.name)));
        }
        tree.entries.push_back(std::move(entry));
    }
    TreeFolder& folder = tree.folders[number];
    folder.error = listing.Error();
    folder.firstEntry = first;
    folder.entryCount = tree.entries.size() - first;
}

} // namespace

Tree ScanTree(const CString& root)
{
    Tree tree;
    tree.root = root;
    tree.folders.push_back(FolderAt(root, CString()));
    for (std::size_t number = 0; number < tree.folders.size(); ++number)
        ScanFolder(tree, number);
    return tree;
}

TreeSize SizeOf(const Tree& tree)
{
    TreeSize size;
    size.folders = tree.folders.size();
    size.files = tree.entries.size() - (tree.folders.size() - 1);
    for (const TreeEntry& entry : tree.entries)
        if (entry.kind == TreeKind::File)
            size.bytes += std::max<std::int64_t>(entry.size, 0);
    return size;
}

} // namespace VyrHost
