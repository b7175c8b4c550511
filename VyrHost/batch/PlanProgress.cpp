// Finds paths in a tree of folders whose names change.
#include <VyrHost/batch/PlanProgress.h>

#include <VyrPlatform/files/FileSystem.h>

namespace VyrHost::Batch {

using VyrPlatform::FileSystem::JoinPath;

PlanProgress::PlanProgress(const Model::RenamePlan& plan, std::uint64_t token)
    : m_plan(plan), m_token(token), m_locations(plan.entries.size(), Location::Before),
      m_newFolders(plan.folders.size(), NewFolder::Absent)
{}

Model::Place PlanProgress::PlaceOf(Model::PlanIndex entry, Location location) const
{
    const Model::PlanEntry& planned = m_plan.entries[entry];
    if (location != Location::Temporary)
        return location == Location::After ? planned.to : planned.from;
    CString name;
    name.Format(u".vyr-%016x-%u.tmp", m_token, entry);
    return {planned.from.folder, m_plan.texts->Intern(name)};
}

std::optional<Model::Place> PlanProgress::PlaceOfFolder(Model::PlanIndex folder) const
{
    const Model::PlanIndex entry = m_plan.folders[folder].entry;
    if (entry == Model::none)
        return m_plan.folders[folder].place;
    if (m_locations[entry] == Location::Unknown)
        return {};
    return PlaceOf(entry, m_locations[entry]);
}

std::optional<CString> PlanProgress::PathOfFolder(Model::PlanIndex folder) const
{
    std::vector<Model::InternedName> names;
    for (Model::PlanIndex at = folder; at != Model::none;) {
        const std::optional<Model::Place> place = PlaceOfFolder(at);
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

CString PlanProgress::PathOf(const Model::Place& place) const
{
    const std::optional<CString> folder = PathOfFolder(place.folder);
    return JoinPath(folder ? *folder : Model::PathBefore(m_plan, place.folder), place.name);
}

} // namespace VyrHost::Batch
