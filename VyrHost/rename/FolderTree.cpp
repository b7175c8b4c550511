// Cuts paths into folders and names.
#include <VyrHost/rename/FolderTree.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileSystem.h>

#include <algorithm>

namespace VyrHost::Rename {

namespace {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FileSystem::IsSeparator;

/// In code units; more than any of the systems takes.
constexpr std::size_t longestPath = 32'767;

bool CanName(std::u16string_view name)
{
    return !name.empty() && name != u"." && name != u".." && name.find(u'\0') == name.npos;
}

/// `root` with the system's own separators.
CString WrittenUsually(std::u16string_view root)
{
    CString text;
    for (const char16_t unit : root)
        text += IsSeparator(unit) ? VyrPlatform::FileSystem::Separator() : unit;
    return text;
}

} // namespace

FolderTree::FolderTree(Model::RenamePlan& plan, const FoldingOfFolder& foldingOf) : m_plan(plan), m_foldingOf(foldingOf)
{}

std::optional<Model::Place> FolderTree::PlaceOf(const Model::PlannedPath& path)
{
    const std::u16string_view name = path.name;
    if (path.folder.View().size() + name.size() > longestPath || !CanName(name))
        return {};
    const Model::PlanIndex folder = FolderOf(path.folder);
    if (folder == Model::none)
        return {};
    return Model::Place{folder, path.name};
}

Model::Place FolderTree::SlotOf(const Model::Place& place)
{
    if (TakesNamesAsTheyAre(place.folder))
        return place;
    return {place.folder, m_foldedNames.Intern(VyrHostPlatform::FoldName(place.name.View(), m_foldings[place.folder]))};
}

Model::PlanIndex FolderTree::Collect(const Model::Place& place, std::u16string_view path)
{
    const Model::Place slot = SlotOf(place);
    const Model::PlanIndex known = FolderAt(slot);
    if (known != Model::none)
        return known;
    const Model::PlanIndex folder = Add(place, path);
    m_bySlot.Put(slot, folder);
    return folder;
}

Model::PlanIndex FolderTree::FolderOf(const CString& folderPath)
{
    if (m_lastPath == folderPath)
        return m_lastFolder;
    m_lastPath = folderPath;
    const auto [known, isNew] = m_byPath.try_emplace(m_lastPath, Model::none);
    if (isNew)
        known->second = Walk(folderPath);
    m_lastFolder = known->second;
    return m_lastFolder;
}

Model::PlanIndex FolderTree::Walk(std::u16string_view folderPath)
{
    const CString root = FileUtils::GetSplitPath(folderPath, 1);
    auto at = static_cast<std::size_t>(root.GetLength());
    if (at == 0 || !IsSeparator(folderPath[at - 1]))
        return Model::none;
    Model::PlanIndex folder = RootOf(root);
    while (at < folderPath.size()) {
        const auto end = static_cast<std::size_t>(
            std::find_if(folderPath.begin() + static_cast<std::ptrdiff_t>(at), folderPath.end(), IsSeparator) -
            folderPath.begin());
        const std::u16string_view name = folderPath.substr(at, end - at);
        if (!name.empty() && name != u".")
            folder = Collect({folder, m_plan.texts->Intern(name)}, folderPath.substr(0, end));
        at = end + 1;
    }
    return folder;
}

Model::PlanIndex FolderTree::RootOf(std::u16string_view root)
{
    const CString usual = WrittenUsually(root);
    const Model::Place slot{Model::none, m_foldedNames.Intern(VyrHostPlatform::FoldName(usual, m_foldingOf(usual)))};
    const Model::PlanIndex known = FolderAt(slot);
    if (known != Model::none)
        return known;
    const Model::PlanIndex folder = Add({Model::none, m_plan.texts->Intern(usual)}, usual);
    m_bySlot.Put(slot, folder);
    return folder;
}

Model::PlanIndex FolderTree::Add(const Model::Place& place, std::u16string_view path)
{
    m_plan.folders.push_back({.place = place});
    m_foldings.push_back(m_foldingOf(path));
    return static_cast<Model::PlanIndex>(m_plan.folders.size() - 1);
}

} // namespace VyrHost::Rename
