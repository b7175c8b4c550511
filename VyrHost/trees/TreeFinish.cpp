// Compares trees, and tries again what is missing: the library keeps no reasons, the second attempt tells them.
#include <VyrHost/trees/TreeFinish.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileCopy.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/files/FolderListing.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace VyrHost {

namespace {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FileState;
using VyrPlatform::LookAtFile;
using VyrPlatform::FileSystem::Kind;
namespace FileCopy = VyrPlatform::FileCopy;
namespace FileSystem = VyrPlatform::FileSystem;
namespace FileTimes = VyrPlatform::FileTimes;

/// Where an entry was, and where it should be.
struct Way
{
    CString from;
    CString to;
};

bool IsSameLink(const TreeEntry& entry, const CString& to, const FileState& there)
{
    // Where the system copies what a link leads to, a file stands for it.
    return FileSystem::GetLinkTarget(to) == entry.linkTarget || (there.kind == Kind::File && there.size == entry.size);
}

/// Whether `there` is the file of `entry`, as it was taken down or as it has become since.
bool IsSameFile(const TreeEntry& entry, const CString& from, const FileState& there)
{
    if (there.kind != Kind::File)
        return false;
    if (there.size == entry.size)
        return true;
    const FileState now = LookAtFile(from);
    return now.kind == Kind::File && now.size == there.size;
}

bool IsSame(const TreeEntry& entry, const Way& way, const FileState& there)
{
    switch (entry.kind) {
    case TreeKind::Folder:
        return there.kind == Kind::Folder;
    case TreeKind::File:
        return IsSameFile(entry, way.from, there);
    case TreeKind::Link:
        return IsSameLink(entry, way.to, there);
    case TreeKind::Other:
        break;
    }
    return there.kind == Kind::Other;
}

/// Whether `target`, which may not be there yet, is on another file system than the folder `source`.
bool IsElsewhere(const CString& source, const CString& target)
{
    FileState to = LookAtFile(target);
    if (to.kind != Kind::Folder)
        to = LookAtFile(FileUtils::GetSplitDirPath(target));
    const FileState from = LookAtFile(source);
    return from.kind == Kind::Folder && to.kind == Kind::Folder && from.identity.device != to.identity.device;
}

class TreeFinisher
{
public:
    TreeFinisher(const Tree& tree, const CString& target, TreeAction action, TreeRecords& records)
        : m_tree(tree), m_target(target), m_action(action), m_records(records),
          m_isSourceLeft(action == TreeAction::Move && LookAtFile(tree.root).kind != Kind::Missing),
          m_isThere(tree.folders.size())
    {}

    TreeProblems Run()
    {
        m_isThere[0] = true;
        for (std::size_t number = 0; number < m_isThere.size(); ++number)
            FinishFolder(m_tree.folders[number], m_isThere[number]);
        if (m_isSourceLeft)
            RemoveEmptied();
        return std::move(m_problems);
    }

private:
    void FinishFolder(const TreeFolder& folder, bool isThere)
    {
        if (folder.error != 0)
            Report(folder.path, TreeFault::NotRead, folder.error);
        for (std::size_t index = 0; index < folder.entryCount; ++index) {
            const TreeEntry& entry = m_tree.entries[folder.firstEntry + index];
            const CString path = FileUtils::GetCombinePath(folder.path, entry.name);
            if (isThere)
                FinishEntry(entry, path);
            else
                Report(path, TreeFault::NoFolder);
        }
    }

    void FinishEntry(const TreeEntry& entry, const CString& path)
    {
        const Way way = WayOf(path);
        const FileState there = LookAtFile(way.to);
        const bool isSame = there.kind == Kind::Missing ? TryAgain(entry, way, path) : IsSame(entry, way, there);
        if (entry.kind == TreeKind::Folder)
            m_isThere[entry.folder] = isSame;
        if (!isSame && there.kind != Kind::Missing)
            Report(path, TreeFault::Differs);
        else if (isSame && m_isSourceLeft && entry.kind != TreeKind::Folder &&
                 LookAtFile(way.from).kind != Kind::Missing)
            Report(path, TreeFault::StillAtSource);
    }

    /// Copies or moves what has not come to its target; false when that fails, which is reported.
    bool TryAgain(const TreeEntry& entry, const Way& way, const CString& path)
    {
        if (entry.kind == TreeKind::Other && m_action == TreeAction::Copy) {
            Report(path, TreeFault::NoContent);
            return false;
        }
        const std::uint32_t error = entry.kind == TreeKind::Folder ? MakeFolder(m_tree.folders[entry.folder], way)
                                    : m_action == TreeAction::Copy ? FileCopy::Copy(way.from, way.to)
                                                                   : FileCopy::Move(way.from, way.to);
        if (error != 0)
            Report(path, entry.kind == TreeKind::Other ? TreeFault::NoContent : TreeFault::System, error);
        return error == 0;
    }

    std::uint32_t MakeFolder(const TreeFolder& folder, const Way& way)
    {
        const std::uint32_t error = FileSystem::CreateFolder(way.to);
        if (error == 0)
            m_records.push_back(
                {way.from, way.to, FileTimes::ToLocal(folder.created), FileTimes::ToLocal(folder.modified)});
        return error;
    }

    /// Removes the folders that the second attempts have emptied. A folder that still holds something known is none to
    /// speak of.
    void RemoveEmptied()
    {
        const bool isAllElseWell = m_problems.empty();
        std::vector<bool> isLeft(m_tree.folders.size());
        for (std::size_t number = m_tree.folders.size(); number-- > 0;) {
            const TreeFolder& folder = m_tree.folders[number];
            const CString path = WayOf(folder.path).from;
            const std::uint32_t error = FileCopy::RemoveEmptyFolder(path);
            isLeft[number] = error != 0 && LookAtFile(path).kind != Kind::Missing;
            if (isLeft[number] && isAllElseWell && !HoldsAny(folder, isLeft))
                Report(folder.path, IsEmpty(path) ? TreeFault::StillAtSource : TreeFault::NotEmpty, error);
        }
    }

    /// Whether one of the folders in `folder` is among `folders`.
    [[nodiscard]] bool HoldsAny(const TreeFolder& folder, const std::vector<bool>& folders) const
    {
        const auto first = m_tree.entries.begin() + static_cast<std::ptrdiff_t>(folder.firstEntry);
        return std::any_of(first, first + static_cast<std::ptrdiff_t>(folder.entryCount), [&](const TreeEntry& entry) {
            return entry.kind == TreeKind::Folder && folders[entry.folder];
        });
    }

    [[nodiscard]] static bool IsEmpty(const CString& path)
    {
        VyrPlatform::FolderListing listing(path);
        return !listing.Next() && listing.Error() == 0;
    }

    [[nodiscard]] Way WayOf(const CString& path) const
    {
        return {FileUtils::GetCombinePath(m_tree.root, path), FileUtils::GetCombinePath(m_target, path)};
    }

    void Report(const CString& path, TreeFault fault, std::uint32_t error = 0)
    {
        m_problems.push_back({path, fault, error});
    }

    const Tree& m_tree;
    const CString m_target;
    const TreeAction m_action;
    TreeRecords& m_records;
    /// After a move something is left where the tree was.
    const bool m_isSourceLeft;
    /// For each folder of the tree: whether it has come to the target.
    std::vector<bool> m_isThere;
    TreeProblems m_problems;
};

} // namespace

TreeProblems ForeseeProblems(const Tree& tree, const CString& target, TreeAction action)
{
    const bool copies = action == TreeAction::Copy || IsElsewhere(tree.root, target);
    TreeProblems problems;
    for (const TreeFolder& folder : tree.folders) {
        if (folder.error != 0)
            problems.push_back({folder.path, TreeFault::NotRead, folder.error});
        for (std::size_t index = 0; index < folder.entryCount; ++index) {
            const TreeEntry& entry = tree.entries[folder.firstEntry + index];
            if (entry.kind == TreeKind::Other && copies)
                problems.push_back({FileUtils::GetCombinePath(folder.path, entry.name), TreeFault::NoContent, 0});
        }
    }
    return problems;
}

TreeProblems FinishTree(const Tree& tree, const CString& target, TreeAction action, TreeRecords& records)
{
    return TreeFinisher(tree, target, action, records).Run();
}

} // namespace VyrHost
