// Cuts paths into folders and names.
#include <VyrHost/plan/FolderTree.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/FileSystem.h>

#include <algorithm>

namespace VyrHost {

namespace {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FileSystem::IsSeparator;

/// In code units; more than any of the systems takes.
constexpr int longestPath = 32'767;

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

FolderTree::FolderTree(std::vector<PlanFolder>& folders, const FoldingOfFolder& foldingOf)
    : m_folders(folders), m_foldingOf(foldingOf)
{}

std::optional<Place> FolderTree::PlaceOf(const PlannedPath& path)
{
    if (path.folder.GetLength() + path.name.GetLength() > longestPath || !CanName(path.name))
        return {};
    const PlanIndex folder = FolderOf(path.folder);
    if (folder == none)
        return {};
    return Place{folder, path.name};
}

Slot FolderTree::SlotOf(const Place& place) const
{
    return {place.folder, VyrPlatform::FoldName(place.name, m_foldings[place.folder])};
}

PlanIndex FolderTree::Collect(const Place& place, std::u16string_view path)
{
    const Slot slot = SlotOf(place);
    const PlanIndex known = FolderAt(slot);
    if (known != none)
        return known;
    const PlanIndex folder = Add(place, path);
    m_bySlot.Put(slot, folder);
    return folder;
}

PlanIndex FolderTree::FolderOf(const CString& folderPath)
{
    if (m_lastPath == folderPath)
        return m_lastFolder;
    m_lastPath = folderPath;
    const auto [known, isNew] = m_byPath.try_emplace(m_lastPath, none);
    if (isNew)
        known->second = Walk(folderPath);
    m_lastFolder = known->second;
    return m_lastFolder;
}

PlanIndex FolderTree::Walk(std::u16string_view folderPath)
{
    const CString root = FileUtils::GetSplitPath(folderPath, 1);
    auto at = static_cast<std::size_t>(root.GetLength());
    if (at == 0 || !IsSeparator(folderPath[at - 1]))
        return none;
    PlanIndex folder = RootOf(root);
    while (at < folderPath.size()) {
        const auto end = static_cast<std::size_t>(
            std::find_if(folderPath.begin() + static_cast<std::ptrdiff_t>(at), folderPath.end(), IsSeparator) -
            folderPath.begin());
        const std::u16string_view name = folderPath.substr(at, end - at);
        if (!name.empty() && name != u".")
            folder = Collect({folder, name}, folderPath.substr(0, end));
        at = end + 1;
    }
    return folder;
}

PlanIndex FolderTree::RootOf(std::u16string_view root)
{
    const CString usual = WrittenUsually(root);
    const Slot slot{none, VyrPlatform::FoldName(usual, m_foldingOf(usual))};
    const PlanIndex known = FolderAt(slot);
    if (known != none)
        return known;
    const PlanIndex folder = Add({none, usual}, usual);
    m_bySlot.Put(slot, folder);
    return folder;
}

PlanIndex FolderTree::Add(const Place& place, std::u16string_view path)
{
    m_folders.push_back({.place = place});
    m_foldings.push_back(m_foldingOf(path));
    return static_cast<PlanIndex>(m_folders.size() - 1);
}

} // namespace VyrHost
