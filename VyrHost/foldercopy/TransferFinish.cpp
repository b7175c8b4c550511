// Compares trees, and repeats what failed: the library keeps no error codes, but the second attempt gives them.
#include <VyrHost/foldercopy/Transfer.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileCopy.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/files/FolderListing.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace VyrHost::FolderCopy {

namespace {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FileState;
using VyrPlatform::LookAtFile;
using VyrPlatform::FileSystem::Kind;
namespace FileCopy = VyrPlatform::FileCopy;
namespace FileSystem = VyrPlatform::FileSystem;
namespace FileTimes = VyrPlatform::FileTimes;

/// The old and the new path of an entry.
struct Way
{
    CString from;
    CString to;
};

bool IsSameLink(const SnapshotEntry& entry, const CString& to, const FileState& there)
{
    // Where the system copies the target of a link, there is a file instead of the link.
    return FileSystem::GetLinkTarget(to) == entry.linkTarget || (there.kind == Kind::File && there.size == entry.size);
}

/// Whether `there` is the file of `entry`, as in the snapshot or as it is at present.
bool IsSameFile(const SnapshotEntry& entry, const CString& from, const FileState& there)
{
    if (there.kind != Kind::File)
        return false;
    if (there.size == entry.size)
        return true;
    const FileState now = LookAtFile(from);
    return now.kind == Kind::File && now.size == there.size;
}

bool IsSame(const SnapshotEntry& entry, const Way& way, const FileState& there)
{
    switch (entry.kind) {
    case SnapshotKind::Folder:
        return there.kind == Kind::Folder;
    case SnapshotKind::File:
        return IsSameFile(entry, way.from, there);
    case SnapshotKind::Link:
        return IsSameLink(entry, way.to, there);
    case SnapshotKind::Other:
        break;
    }
    return there.kind == Kind::Other;
}

/// Whether `target`, which may not exist yet, is on another file system than the folder `source`.
bool IsElsewhere(const CString& source, const CString& target)
{
    FileState to = LookAtFile(target);
    if (to.kind != Kind::Folder)
        to = LookAtFile(FileUtils::GetSplitDirPath(target));
    const FileState from = LookAtFile(source);
    return from.kind == Kind::Folder && to.kind == Kind::Folder && from.identity.device != to.identity.device;
}

class TransferFinisher
{
public:
    TransferFinisher(const FolderSnapshot& tree, const CString& target, TransferAction action, TransferRecords& records)
        : m_tree(tree), m_target(target), m_action(action), m_records(records),
          m_isSourceLeft(action == TransferAction::Move && LookAtFile(tree.root).kind != Kind::Missing),
          m_isThere(tree.folders.size())
    {}

    TransferProblems Run()
    {
        m_isThere[0] = true;
        for (std::size_t number = 0; number < m_isThere.size(); ++number)
            FinishFolder(m_tree.folders[number], m_isThere[number]);
        if (m_isSourceLeft)
            RemoveEmptied();
        return std::move(m_problems);
    }

private:
    void FinishFolder(const SnapshotFolder& folder, bool isThere)
    {
        if (folder.error != 0)
            Report(folder.path, TransferFault::NotRead, folder.error);
        for (std::size_t index = 0; index < folder.entryCount; ++index) {
            const SnapshotEntry& entry = m_tree.entries[folder.firstEntry + index];
            const CString path = FileUtils::GetCombinePath(folder.path, entry.name);
            if (isThere)
                FinishEntry(entry, path);
            else
                Report(path, TransferFault::NoFolder);
        }
    }

    void FinishEntry(const SnapshotEntry& entry, const CString& path)
    {
        const Way way = WayOf(path);
        const FileState there = LookAtFile(way.to);
        const bool isSame = there.kind == Kind::Missing ? TryAgain(entry, way, path) : IsSame(entry, way, there);
        if (entry.kind == SnapshotKind::Folder)
            m_isThere[entry.folder] = isSame;
        if (!isSame && there.kind != Kind::Missing)
            Report(path, TransferFault::Differs);
        else if (isSame && m_isSourceLeft && entry.kind != SnapshotKind::Folder &&
                 LookAtFile(way.from).kind != Kind::Missing)
            Report(path, TransferFault::StillAtSource);
    }

    /// Copies or moves a missing entry; false on failure, which is reported.
    bool TryAgain(const SnapshotEntry& entry, const Way& way, const CString& path)
    {
        if (entry.kind == SnapshotKind::Other && m_action == TransferAction::Copy) {
            Report(path, TransferFault::NoContent);
            return false;
        }
        const std::uint32_t error = entry.kind == SnapshotKind::Folder ? MakeFolder(m_tree.folders[entry.folder], way)
                                    : m_action == TransferAction::Copy ? FileCopy::Copy(way.from, way.to)
                                                                       : FileCopy::Move(way.from, way.to);
        if (error != 0)
            Report(path, entry.kind == SnapshotKind::Other ? TransferFault::NoContent : TransferFault::System, error);
        return error == 0;
    }

    std::uint32_t MakeFolder(const SnapshotFolder& folder, const Way& way)
    {
        const std::uint32_t error = FileSystem::CreateFolder(way.to);
        if (error == 0)
            m_records.push_back(
                {way.from, way.to, FileTimes::ToLocal(folder.created), FileTimes::ToLocal(folder.modified)});
        return error;
    }

    /// Removes the folders that the second attempts have emptied. Ignores folders that still contain known entries.
    void RemoveEmptied()
    {
        const bool isAllElseWell = m_problems.empty();
        std::vector<bool> isLeft(m_tree.folders.size());
        for (std::size_t number = m_tree.folders.size(); number-- > 0;) {
            const SnapshotFolder& folder = m_tree.folders[number];
            const CString path = WayOf(folder.path).from;
            const std::uint32_t error = FileCopy::RemoveEmptyFolder(path);
            isLeft[number] = error != 0 && LookAtFile(path).kind != Kind::Missing;
            if (isLeft[number] && isAllElseWell && !HoldsAny(folder, isLeft))
                Report(folder.path, IsEmpty(path) ? TransferFault::StillAtSource : TransferFault::NotEmpty, error);
        }
    }

    /// Whether one of the subfolders of `folder` is among `folders`.
    [[nodiscard]] bool HoldsAny(const SnapshotFolder& folder, const std::vector<bool>& folders) const
    {
        const auto first = m_tree.entries.begin() + static_cast<std::ptrdiff_t>(folder.firstEntry);
        return std::any_of(
            first, first + static_cast<std::ptrdiff_t>(folder.entryCount),
            [&](const SnapshotEntry& entry) { return entry.kind == SnapshotKind::Folder && folders[entry.folder]; });
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

    void Report(const CString& path, TransferFault fault, std::uint32_t error = 0)
    {
        m_problems.push_back({path, fault, error});
    }

    const FolderSnapshot& m_tree;
    const CString m_target;
    const TransferAction m_action;
    TransferRecords& m_records;
    /// Whether anything is left at the source after a move.
    const bool m_isSourceLeft;
    /// For each folder of the tree: whether it exists at the target.
    std::vector<bool> m_isThere;
    TransferProblems m_problems;
};

} // namespace

bool CopiesFiles(const FolderSnapshot& tree, const CString& target, TransferAction action)
{
    return action == TransferAction::Copy || IsElsewhere(tree.root, target);
}

TransferProblems PredictProblems(const FolderSnapshot& tree, const CString& target, TransferAction action)
{
    const bool copies = CopiesFiles(tree, target, action);
    TransferProblems problems;
    for (const SnapshotFolder& folder : tree.folders) {
        if (folder.error != 0)
            problems.push_back({folder.path, TransferFault::NotRead, folder.error});
        for (std::size_t index = 0; index < folder.entryCount; ++index) {
            const SnapshotEntry& entry = tree.entries[folder.firstEntry + index];
            if (entry.kind == SnapshotKind::Other && copies)
                problems.push_back({FileUtils::GetCombinePath(folder.path, entry.name), TransferFault::NoContent, 0});
        }
    }
    return problems;
}

TransferProblems FinishTransfer(const FolderSnapshot& tree, const CString& target, TransferAction action,
                                TransferRecords& records)
{
    return TransferFinisher(tree, target, action, records).Run();
}

} // namespace VyrHost::FolderCopy
