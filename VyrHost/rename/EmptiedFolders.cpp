// Finds the folders that a plan empties, and removes them.
#include <VyrHost/rename/EmptiedFolders.h>

#include <VyrHost/model/FolderSet.h>
#include <VyrHostPlatform/RenameFile.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/process/Process.h>

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_set>
#include <utility>

namespace VyrHost::Rename {

using VyrPlatform::FileSystem::Kind;

std::shared_ptr<const Model::Change> FolderRemoval::Read(const CString& before, const CString& after)
{
    auto traits = VyrHostPlatform::ParseFolderTraits(before);
    return traits && after == u"removed" ? std::make_shared<FolderRemoval>(std::move(*traits)) : nullptr;
}

Model::ChangeLook FolderRemoval::Look(const CString& path) const
{
    switch (VyrPlatform::LookAtFile(path).kind) {
    case Kind::Folder:
        return {VyrHostPlatform::GetFolderTraits(path) == m_traits ? Model::ChangeState::Before
                                                                   : Model::ChangeState::Partly,
                0};
    case Kind::Missing:
        return {Model::ChangeState::After, 0};
    default:
        return {Model::ChangeState::Other, 0};
    }
}

std::uint32_t FolderRemoval::Apply(const CString& path) const
{
    const VyrHostPlatform::OpenFolder folder(Model::FolderPart(path));
    return folder.IsOpen() ? folder.RemoveEmptyFolder(Model::NamePart(path)) : folder.Error();
}

std::uint32_t FolderRemoval::Undo(const CString& path) const
{
    const std::u16string_view name = Model::NamePart(path);
    const VyrHostPlatform::OpenFolder folder(Model::FolderPart(path));
    if (!folder.IsOpen())
        return folder.Error();
    // One that exists was made before the work was cut off.
    if (folder.Look(name).kind != Kind::Folder)
        if (const std::uint32_t error = folder.MakeFolder(name))
            return error;
    if (const std::uint32_t error = VyrHostPlatform::SetFolderExtras(path, m_traits))
        return error;
    return VyrHostPlatform::SetFolderMode(path, m_traits);
}

namespace {

using Identities = std::unordered_set<VyrPlatform::FileIdentity, Model::IdentityHash>;

/// The current folder and its parents.
Identities FindCurrent()
{
    Identities current;
    CString path = VyrPlatform::Process::GetCurrentFolder();
    for (auto state = VyrPlatform::LookAtFile(path);
         state.kind == Kind::Folder && current.insert(state.identity).second; state = VyrPlatform::LookAtFile(path))
        path = VyrPlatform::FileSystem::JoinPath(path, u"..");
    return current;
}

class EmptiedSearch
{
public:
    EmptiedSearch(const Model::RenamePlan& plan, const Model::FolderSet& folders)
        : m_plan(plan), m_folders(folders), m_left(plan.folders.size()), m_gains(plan.folders.size())
    {
        for (const Model::PlanEntry& entry : plan.entries) {
            if (entry.from.folder == entry.to.folder)
                continue;
            ++m_left[entry.from.folder];
            m_gains[entry.to.folder] = true;
        }
        for (const Model::PlanFolder& folder : plan.folders)
            if (folder.isNew)
                m_gains[folder.place.folder] = true;
    }

    std::vector<EmptiedFolder> Run()
    {
        // Each folder comes after its parent.
        for (std::size_t folder = m_plan.folders.size(); folder-- > 0;)
            if (m_left[folder] > 0 && IsEmptied(static_cast<Model::PlanIndex>(folder)))
                Take(m_plan.folders[folder].place, Model::PathBefore(m_plan, static_cast<Model::PlanIndex>(folder)));
        return std::move(m_emptied);
    }

private:
    [[nodiscard]] bool IsEmptied(Model::PlanIndex index)
    {
        const Model::PlanFolder& planned = m_plan.folders[index];
        if (planned.isNew || planned.entry != Model::none || planned.place.folder == Model::none || m_gains[index])
            return false;
        const std::optional<std::uint32_t> number =
            m_folders.FindOpened(VyrPlatform::FileSystem::JoinPath(Model::PathBefore(m_plan, index), u""));
        return number && m_folders[*number].exists && m_folders[*number].names.Records().size() == m_left[index];
    }

    void Take(const Model::Place& place, const CString& path)
    {
        const VyrPlatform::FileState state = VyrPlatform::LookAtFile(path);
        if (!m_current)
            m_current = FindCurrent();
        auto traits = VyrHostPlatform::GetFolderTraits(path);
        if (state.kind != Kind::Folder || m_current->contains(state.identity) || !traits)
            return;
        m_emptied.push_back({place, std::make_shared<FolderRemoval>(std::move(*traits))});
        ++m_left[place.folder];
    }

    const Model::RenamePlan& m_plan;
    const Model::FolderSet& m_folders;
    /// For each folder of the plan, the number of entries that leave it.
    std::vector<std::size_t> m_left;
    /// For each folder of the plan, whether an entry moves into it.
    std::vector<bool> m_gains;
    std::optional<Identities> m_current;
    std::vector<EmptiedFolder> m_emptied;
};

} // namespace

std::vector<EmptiedFolder> FindEmptied(const Model::RenamePlan& plan, const Model::FolderSet& folders)
{
    return EmptiedSearch(plan, folders).Run();
}

Model::ChangeKinds Kinds()
{
    return {{std::string(FolderRemoval::kind), FolderRemoval::Read}};
}

} // namespace VyrHost::Rename
