// What can be said of a plan from its folders alone.
#include <VyrHost/model/RenamePlan.h>

#include <VyrPlatform/files/FileSystem.h>

#include <array>
#include <string>

namespace VyrHost::Model {

namespace {

/// The folders that `folder` stands in: before the batch, and after it where the batch moves it.
std::array<PlanIndex, 2> ParentsOf(const RenamePlan& plan, const PlanFolder& folder)
{
    const PlanIndex before = folder.place.folder;
    const PlanIndex after = folder.entry == none ? none : plan.entries[folder.entry].to.folder;
    return {before, after == before ? none : after};
}

} // namespace

CString PathBefore(const RenamePlan& plan, PlanIndex folder)
{
    std::vector<PlanIndex> line;
    for (PlanIndex at = folder; at != none; at = plan.folders[at].place.folder)
        line.push_back(at);
    std::u16string path(plan.folders[line.back()].place.name.View());
    for (std::size_t index = line.size() - 1; index-- > 0;) {
        path += plan.folders[line[index]].place.name;
        if (index > 0)
            path += VyrPlatform::FileSystem::Separator();
    }
    return std::u16string_view(path);
}

std::vector<PlanIndex> OrderFolders(const RenamePlan& plan)
{
    // A folder is ready once all its parents are in the order.
    const std::size_t count = plan.folders.size();
    std::vector<std::vector<PlanIndex>> inside(count);
    std::vector<unsigned> missingParents(count, 0);
    std::vector<PlanIndex> order;
    order.reserve(count);
    for (PlanIndex folder = 0; folder < count; ++folder) {
        for (const PlanIndex parent : ParentsOf(plan, plan.folders[folder])) {
            if (parent == none)
                continue;
            inside[parent].push_back(folder);
            ++missingParents[folder];
        }
        if (missingParents[folder] == 0)
            order.push_back(folder);
    }
    for (std::size_t next = 0; next < order.size(); ++next)
        for (const PlanIndex folder : inside[order[next]])
            if (--missingParents[folder] == 0)
                order.push_back(folder);
    return order;
}

} // namespace VyrHost::Model
