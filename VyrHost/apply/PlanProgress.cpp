// Finds paths in a tree of folders whose names change.
#include <VyrHost/apply/PlanProgress.h>

#include <VyrPlatform/files/FileSystem.h>

namespace VyrHost {

namespace {

CString JoinPath(const CString& folder, std::u16string_view name)
{
    const char16_t separator = VyrPlatform::FileSystem::Separator();
    const bool hasSeparator = folder.IsEmpty() || VyrPlatform::FileSystem::IsSeparator(folder[folder.GetLength() - 1]);
    return CString::Join({folder, hasSeparator ? std::u16string_view() : std::u16string_view(&separator, 1), name});
}

} // namespace

PlanProgress::PlanProgress(const RenamePlan& plan, std::uint64_t token)
    : m_plan(plan), m_token(token), m_standings(plan.entries.size(), Standing::Before),
      m_newFolders(plan.folders.size(), NewFolder::Absent)
{}

Place PlanProgress::PlaceOf(PlanIndex entry, Standing standing) const
{
    const PlanEntry& planned = m_plan.entries[entry];
    if (standing != Standing::Aside)
        return standing == Standing::After ? planned.to : planned.from;
    CString name;
    name.Format(u".vyr-%016x-%u.tmp", m_token, entry);
    return {planned.from.folder, m_plan.texts->Keep(name)};
}

std::optional<Place> PlanProgress::PlaceOfFolder(PlanIndex folder) const
{
    const PlanIndex entry = m_plan.folders[folder].entry;
    if (entry == none)
        return m_plan.folders[folder].place;
    if (m_standings[entry] == Standing::Unknown)
        return {};
    return PlaceOf(entry, m_standings[entry]);
}

std::optional<CString> PlanProgress::PathOfFolder(PlanIndex folder) const
{
    std::vector<KeptName> names;
    for (PlanIndex at = folder; at != none;) {
        const std::optional<Place> place = PlaceOfFolder(at);
        if (!place)
            return {};
        names.push_back(place->name);
        at = place->folder;
    }
    CString path = names.back().View();
    for (std::size_t index = names.size() - 1; index-- > 0;)
        path = JoinPath(path, names[index]);
    return path;
}

CString PlanProgress::PathOf(const Place& place) const
{
    const std::optional<CString> folder = PathOfFolder(place.folder);
    return JoinPath(folder ? *folder : PathBefore(m_plan, place.folder), place.name);
}

} // namespace VyrHost
