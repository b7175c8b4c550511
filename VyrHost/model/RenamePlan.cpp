// Adds folders to plans, and checks plans that come from elsewhere.
#include <VyrHost/model/RenamePlan.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileSystem.h>

#include <algorithm>
#include <array>
#include <string>

namespace VyrHost::Model {

namespace {

/// The folders that `folder` is in: before the batch, and after it where the batch moves it.
std::array<PlanIndex, 2> ParentsOf(const RenamePlan& plan, const PlanFolder& folder)
{
    const PlanIndex before = folder.place.folder;
    const PlanIndex after = folder.entry == none ? none : plan.entries[folder.entry].to.folder;
    return {before, after == before ? none : after};
}

} // namespace

PlanIndex PlannedFolders::Add(std::uint32_t number)
{
    std::vector<std::uint32_t> missing;
    for (std::uint32_t at = number; at != noFolder && m_indexes[at] == none; at = m_folders[at].parent)
        missing.push_back(at);
    for (; !missing.empty(); missing.pop_back()) {
        const Folder& folder = m_folders[missing.back()];
        const PlanIndex parent = folder.parent == noFolder ? none : m_indexes[folder.parent];
        m_indexes[missing.back()] = static_cast<PlanIndex>(m_plan.folders.size());
        m_plan.folders.push_back({.place = {parent, folder.name}, .isNew = folder.isNew});
        m_numbers.push_back(missing.back());
    }
    return m_indexes[number];
}

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

namespace {

using VyrPlatform::FileSystem::IsSeparator;

bool IsRoot(const CString& path)
{
    return !path.IsEmpty() && IsSeparator(path[path.GetLength() - 1]) &&
           VyrLibraryUtils::FileUtils::GetSplitPath(path, 1) == path;
}

/// Whether `name` is a single part of a path that leads down or, in folders, up.
bool IsPart(std::u16string_view name, bool mayLeadUp)
{
    return !name.empty() && name != u"." && (mayLeadUp || name != u"..") && name.find(u'\0') == name.npos &&
           std::none_of(name.begin(), name.end(), IsSeparator);
}

bool IsFolderSound(const RenamePlan& plan, PlanIndex index)
{
    const PlanFolder& folder = plan.folders[index];
    if (folder.place.folder == none)
        return !folder.isNew && folder.entry == none && IsRoot(folder.place.name.View());
    if (folder.place.folder >= index || !IsPart(folder.place.name, !folder.isNew))
        return false;
    return folder.entry == none ||
           (!folder.isNew && folder.entry < plan.entries.size() && plan.entries[folder.entry].folder == index);
}

bool IsEntrySound(const RenamePlan& plan, const PlanEntry& entry)
{
    const std::size_t folders = plan.folders.size();
    if (!IsPlaceSound(plan, entry.from) || entry.to.folder >= folders || !IsPart(entry.to.name, false) ||
        entry.from == entry.to)
        return false;
    if (entry.waitsFor != none && entry.waitsFor >= plan.entries.size())
        return false;
    return entry.folder == none ||
           (entry.folder < folders && plan.folders[entry.folder].place.folder == entry.from.folder);
}

/// Simulates the steps.
class StepCheck
{
public:
    explicit StepCheck(const RenamePlan& plan)
        : m_plan(plan), m_isMade(plan.folders.size()), m_isTemporary(plan.entries.size()), m_isDone(plan.entries.size())
    {}

    [[nodiscard]] bool IsSound()
    {
        return std::all_of(m_plan.steps.begin(), m_plan.steps.end(),
                           [this](const PlanStep& step) { return Take(step); }) &&
               std::find(m_isDone.begin(), m_isDone.end(), false) == m_isDone.end();
    }

private:
    bool Take(const PlanStep& step)
    {
        if (step.action == PlanStep::Action::MakeFolder)
            return step.subject < m_plan.folders.size() && TakeMaking(step.subject);
        if (step.subject >= m_plan.entries.size() || m_isDone[step.subject])
            return false;
        if (step.action == PlanStep::Action::UseTemporaryName)
            return Set(m_isTemporary, step.subject);
        const PlanEntry& entry = m_plan.entries[step.subject];
        return IsThere(entry.to.folder) && (entry.waitsFor != step.subject || m_isTemporary[step.subject]) &&
               Set(m_isDone, step.subject);
    }

    bool TakeMaking(PlanIndex folder)
    {
        return m_plan.folders[folder].isNew && IsThere(m_plan.folders[folder].place.folder) && Set(m_isMade, folder);
    }

    [[nodiscard]] bool IsThere(PlanIndex folder) const { return !m_plan.folders[folder].isNew || m_isMade[folder]; }

    /// @return false when it was already set.
    static bool Set(std::vector<bool>& flags, PlanIndex index)
    {
        const bool wasSet = flags[index];
        flags[index] = true;
        return !wasSet;
    }

    const RenamePlan& m_plan;
    std::vector<bool> m_isMade;
    std::vector<bool> m_isTemporary;
    std::vector<bool> m_isDone;
};

} // namespace

bool IsPlaceSound(const RenamePlan& plan, const Place& place)
{
    return place.folder < plan.folders.size() && !plan.folders[place.folder].isNew && IsPart(place.name, false);
}

CString FindPlanFault(const RenamePlan& plan)
{
    for (PlanIndex folder = 0; folder < plan.folders.size(); ++folder)
        if (!IsFolderSound(plan, folder))
            return u"a folder is not valid";
    for (const PlanEntry& entry : plan.entries)
        if (!IsEntrySound(plan, entry))
            return u"an entry is not valid";
    if (!StepCheck(plan).IsSound())
        return u"the steps do not fit the entries";
    if (OrderFolders(plan).size() != plan.folders.size())
        return u"a folder would end up inside itself";
    return {};
}

} // namespace VyrHost::Model
