// Searches the folders that exist both in a tree and at its target, and asks for permissions.
#include <VyrHost/foldercopy/TargetCheck.h>

#include <VyrHostPlatform/FolderPermission.h>
#include <VyrHostPlatform/NameFolding.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FolderListing.h>

#include <unordered_map>
#include <utility>

namespace VyrHost::FolderCopy {

namespace {

using VyrHostPlatform::FoldName;
using VyrHostPlatform::NameFolding;
using VyrLibraryUtils::FileUtils;
using VyrPlatform::FolderListing;
using VyrPlatform::FileSystem::Kind;

/// The state of a folder of the tree at the target.
enum class Place : std::uint8_t
{
    /// Unknown: an entry is in the way of it, or of one of its parents.
    InTheWay,
    /// It will be created.
    New,
    /// It exists and will be merged.
    There
};

struct FolderPlan
{
    Place place = Place::InTheWay;
    NameFolding folding = NameFolding::None;
};

class TargetChecker
{
public:
    TargetChecker(const FolderSnapshot& tree, const CString& target, Trial trial)
        : m_tree(tree), m_target(target), m_trial(trial), m_plans(tree.folders.size())
    {}

    TargetCheck Run()
    {
        PlanRoot();
        for (std::size_t number = 0; number < m_plans.size(); ++number)
            if (m_plans[number].place != Place::InTheWay)
                CheckFolder(m_tree.folders[number], m_plans[number]);
        return std::move(m_check);
    }

private:
    void PlanRoot()
    {
        const Kind kind = VyrPlatform::LookAtFile(m_target).kind;
        if (kind == Kind::File || kind == Kind::Other) {
            Report(CString(), TransferFault::TargetExists);
            return;
        }
        SetPlan(0, kind == Kind::Folder ? Place::There : Place::New, VyrHostPlatform::GetNameFolding(m_target));
        if (kind == Kind::Missing)
            CheckAdding(FolderOf(m_target), CString());
    }

    /// Whether names may be added to the existing folder at `path`, which `shown` of the tree needs.
    void CheckAdding(const CString& path, const CString& shown)
    {
        if (const std::uint32_t error = VyrHostPlatform::GetFolderPermission(path).error)
            Report(shown, TransferFault::TargetLocked, error);
    }

    void SetPlan(std::size_t folder, Place place, NameFolding folding)
    {
        m_plans[folder] = {place, folding};
        if (place == Place::New)
            ++m_check.newFolders;
    }

    /// Reads the names in the folder at `path` by their keys, with whether each is a folder and not a link.
    [[nodiscard]] bool ReadNames(const CString& path, NameFolding folding, const CString& shown)
    {
        m_isFolder.clear();
        FolderListing listing(path);
        while (listing.Next())
            m_isFolder.emplace(FoldName(listing.Name(), folding), listing.Kind() == Kind::Folder && !listing.IsLink());
        if (listing.Error() != 0)
            Report(shown, TransferFault::TargetNotRead, listing.Error());
        return listing.Error() == 0;
    }

    void CheckFolder(const SnapshotFolder& folder, FolderPlan plan)
    {
        const CString path = FileUtils::GetCombinePath(m_target, folder.path);
        if (plan.place == Place::There && !ReadNames(path, plan.folding, folder.path))
            return;
        m_names.clear();
        bool hasNew = false;
        for (std::size_t index = 0; index < folder.entryCount; ++index) {
            const SnapshotEntry& entry = m_tree.entries[folder.firstEntry + index];
            const CString key = FoldName(entry.name, plan.folding);
            if (IsTwoInOne(entry.name, key, plan.folding, path))
                Report(FileUtils::GetCombinePath(folder.path, entry.name), TransferFault::TwoNamesInOne);
            else if (plan.place == Place::New)
                PlanNew(entry, plan.folding);
            else if (m_isFolder.contains(key))
                CheckExisting(entry, key, folder.path);
            else {
                PlanNew(entry, plan.folding);
                hasNew = true;
            }
        }
        if (hasNew)
            CheckAdding(path, folder.path);
    }

    /// Whether an earlier entry of its folder, which goes to `path`, has the same name at the target.
    [[nodiscard]] bool IsTwoInOne(const CString& name, const CString& key, NameFolding folding, const CString& path)
    {
        if (folding != NameFolding::None)
            return !m_names.emplace(key, name).second;
        if (m_trial == Trial::No)
            return false;
        const auto [other, isFirst] = m_names.emplace(FoldName(name, NameFolding::CaseAndForm), name);
        return !isFirst && VyrHostPlatform::TryIsOneName(NearestFolder(path), other->second, name);
    }

    /// The folder at `path`, or its nearest existing parent.
    [[nodiscard]] static CString NearestFolder(CString path)
    {
        while (!path.IsEmpty() && !VyrPlatform::FileSystem::IsFolder(path))
            path = FolderOf(path);
        return path;
    }

    /// A new folder compares names as its parent does.
    void PlanNew(const SnapshotEntry& entry, NameFolding folding)
    {
        if (entry.kind == SnapshotKind::Folder)
            SetPlan(entry.folder, Place::New, folding);
    }

    /// Checks an entry whose name exists at the target.
    void CheckExisting(const SnapshotEntry& entry, const CString& key, const CString& folder)
    {
        const CString path = FileUtils::GetCombinePath(folder, entry.name);
        if (entry.kind == SnapshotKind::Folder && m_isFolder.at(key))
            SetPlan(entry.folder, Place::There,
                    VyrHostPlatform::GetNameFolding(FileUtils::GetCombinePath(m_target, path)));
        else
            Report(path, TransferFault::TargetExists);
    }

    void Report(const CString& path, TransferFault fault, std::uint32_t error = 0)
    {
        m_check.conflicts.push_back({path, fault, error});
    }

    const FolderSnapshot& m_tree;
    const CString m_target;
    const Trial m_trial;
    std::vector<FolderPlan> m_plans;
    /// The names in the current folder of the target by their keys, with whether each is a folder.
    std::unordered_map<CString, bool> m_isFolder;
    /// The names so far in the same folder of the tree, by the keys that equal names share.
    std::unordered_map<CString, CString> m_names;
    TargetCheck m_check;
};

} // namespace

TargetCheck CheckTarget(const FolderSnapshot& tree, const CString& target, Trial trial)
{
    return TargetChecker(tree, target, trial).Run();
}

TransferProblems CheckLeaving(const FolderSnapshot& tree)
{
    TransferProblems problems;
    const auto check = [&problems](const CString& folder, const CString& shown, TransferFault fault) {
        const VyrHostPlatform::FolderPermission permission = VyrHostPlatform::GetFolderPermission(folder);
        if (permission.error != 0)
            problems.push_back({shown, fault, permission.error});
        return permission.ownEntriesOnly;
    };
    const auto checkOwner = [&problems, &tree](const CString& path) {
        if (!VyrHostPlatform::IsOwnEntry(FileUtils::GetCombinePath(tree.root, path)))
            problems.push_back({path, TransferFault::NotOwnEntry, 0});
    };
    if (check(FolderOf(tree.root), CString(), TransferFault::RootLocked))
        checkOwner(CString());
    for (const SnapshotFolder& folder : tree.folders) {
        if (folder.entryCount == 0 ||
            !check(FileUtils::GetCombinePath(tree.root, folder.path), folder.path, TransferFault::SourceLocked))
            continue;
        for (std::size_t index = 0; index < folder.entryCount; ++index)
            checkOwner(FileUtils::GetCombinePath(folder.path, tree.entries[folder.firstEntry + index].name));
    }
    return problems;
}

} // namespace VyrHost::FolderCopy
