// Finds out who waits for whom, refuses what cannot be done, and has the rest ordered.
#include <VyrHost/rename/Planner.h>

#include <VyrHost/model/Prefetch.h>
#include <VyrHost/model/SlotTable.h>
#include <VyrHost/rename/StepOrder.h>

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace VyrHost::Rename {

namespace {

using Model::none;
using Model::Place;
using Model::PlanEntry;
using Model::PlanFolder;
using Model::PlanIndex;

class Planner
{
public:
    explicit Planner(RenameDraft draft)
        : m_plan(std::move(draft.plan)), m_foldings(std::move(draft.foldings)), m_groups(std::move(draft.groups)),
          m_isRefused(m_plan.entries.size())
    {}

    PlannerResult Plan()
    {
        FindWhoStandsWhere();
        FindFoldersInTheirPlaces();
        RefuseTangledFolders();
        RefuseDependents();
        return Finish();
    }

private:
    void FindWhoStandsWhere()
    {
        m_occupants.Reserve(2 * m_plan.entries.size());
        for (PlanIndex entry = 0; entry < m_plan.entries.size(); ++entry) {
            Expect(entry + Model::PrefetchDistance, &PlanEntry::from);
            m_occupants.Put(SlotOf(m_plan.entries[entry].from), {.before = entry});
        }
        for (PlanIndex entry = 0; entry < m_plan.entries.size(); ++entry) {
            Expect(entry + Model::PrefetchDistance, &PlanEntry::to);
            PlanEntry& rename = m_plan.entries[entry];
            Occupants& occupants = m_occupants.Put(SlotOf(rename.to), {});
            if (occupants.after != none)
                Refuse(entry, Reason::TwoToOne);
            else
                occupants.after = entry;
            rename.waitsFor = occupants.before;
        }
    }

    void Expect(std::size_t entry, Place PlanEntry::*end) const
    {
        if (entry >= m_plan.entries.size())
            return;
        const Place& place = m_plan.entries[entry].*end;
        if (TakesNamesAsTheyAre(place.folder))
            m_occupants.Expect(place);
    }

    /// Tells the folders that the batch renames and creates from those that stay.
    void FindFoldersInTheirPlaces()
    {
        m_standingAt.assign(m_plan.folders.size(), none);
        for (PlanIndex folder = 0; folder < m_plan.folders.size(); ++folder) {
            PlanFolder& planned = m_plan.folders[folder];
            if (planned.place.folder == none)
                continue;
            const auto [standing, coming] = OccupantsOf(planned.place);
            // Entries move into a folder by its name before the batch, also where the batch gives it another one.
            if (standing != none && m_plan.entries[standing].kind == VyrPlatform::FileSystem::Kind::Folder)
                planned.isNew = false;
            if (planned.isNew) {
                m_standingAt[folder] = standing;
                if (coming != none)
                    Refuse(coming, Reason::TargetExists);
            } else if (standing != none && !m_isRefused[standing]) {
                planned.entry = standing;
                m_plan.entries[standing].folder = folder;
            }
        }
    }

    void RefuseTangledFolders()
    {
        const std::vector<PlanIndex> order = OrderFolders(m_plan);
        if (order.size() == m_plan.folders.size())
            return;
        std::vector<bool> isTangled(m_plan.folders.size(), true);
        for (const PlanIndex folder : order)
            isTangled[folder] = false;
        for (PlanIndex folder = 0; folder < m_plan.folders.size(); ++folder) {
            const PlanIndex entry = m_plan.folders[folder].entry;
            if (isTangled[folder] && entry != none && isTangled[m_plan.entries[entry].to.folder])
                Refuse(entry, Reason::InsideItself);
        }
    }

    /// What needs the place of a refused entry is refused too, since it is not vacated, and what keeps together with
    /// it.
    void RefuseDependents()
    {
        if (m_refused.empty())
            return;
        const std::vector<std::vector<PlanIndex>> waiting = ListWaitingForFolders();
        std::unordered_multimap<std::uint32_t, PlanIndex> members;
        for (PlanIndex entry = 0; entry < m_groups.size(); ++entry)
            members.emplace(m_groups[entry], entry);
        for (std::size_t next = 0; next < m_refused.size(); ++next) {
            const PlanIndex refused = m_refused[next].entry;
            if (const PlanIndex coming = OccupantsOf(m_plan.entries[refused].from).after; coming != none)
                Refuse(coming, Reason::PlaceKept);
            for (const PlanIndex entry : waiting[refused])
                Refuse(entry, Reason::FolderKept);
            const auto [first, end] = members.equal_range(m_groups[refused]);
            for (auto member = first; member != end; ++member)
                Refuse(member->second, Reason::CompanionRefused);
        }
    }

    /// For each entry at whose place a folder is created the entries that move into that folder and the new folders
    /// below it.
    [[nodiscard]] std::vector<std::vector<PlanIndex>> ListWaitingForFolders() const
    {
        // Whatever stands in the way stands at the topmost of the new folders.
        std::vector<PlanIndex> inTheWay(m_plan.folders.size(), none);
        for (PlanIndex folder = 0; folder < m_plan.folders.size(); ++folder) {
            const PlanFolder& planned = m_plan.folders[folder];
            if (planned.isNew)
                inTheWay[folder] =
                    m_plan.folders[planned.place.folder].isNew ? inTheWay[planned.place.folder] : m_standingAt[folder];
        }
        std::vector<std::vector<PlanIndex>> waiting(m_plan.entries.size());
        for (PlanIndex entry = 0; entry < m_plan.entries.size(); ++entry)
            if (const PlanIndex standing = inTheWay[m_plan.entries[entry].to.folder]; standing != none)
                waiting[standing].push_back(entry);
        return waiting;
    }

    /// Who stands at a place before the batch, and who after it.
    struct Occupants
    {
        PlanIndex before = none;
        PlanIndex after = none;
    };

    [[nodiscard]] Occupants OccupantsOf(const Place& place)
    {
        const Occupants* const occupants = m_occupants.Find(SlotOf(place));
        return occupants ? *occupants : Occupants();
    }

    /// `place` as its file system sees it: its name is folded.
    [[nodiscard]] Place SlotOf(const Place& place)
    {
        if (TakesNamesAsTheyAre(place.folder))
            return place;
        return {place.folder,
                m_foldedNames.Intern(VyrHostPlatform::FoldName(place.name.View(), m_foldings[place.folder]))};
    }

    [[nodiscard]] bool TakesNamesAsTheyAre(PlanIndex folder) const
    {
        return m_foldings[folder] == VyrHostPlatform::NameFolding::None;
    }

    void Refuse(PlanIndex entry, Reason reason)
    {
        if (m_isRefused[entry])
            return;
        m_isRefused[entry] = true;
        m_refused.push_back({entry, reason});
    }

    /// Leaves the refused entries out, and has the rest ordered.
    PlannerResult Finish()
    {
        PlannerResult result;
        std::vector<PlanIndex> newIndexes(m_plan.entries.size(), none);
        result.entries.reserve(m_plan.entries.size());
        for (PlanIndex entry = 0; entry < m_plan.entries.size(); ++entry) {
            if (m_isRefused[entry])
                continue;
            const auto kept = static_cast<PlanIndex>(result.entries.size());
            newIndexes[entry] = kept;
            result.entries.push_back(entry);
            if (kept != entry)
                m_plan.entries[kept] = m_plan.entries[entry];
        }
        m_plan.entries.resize(result.entries.size());
        const auto renumber = [&newIndexes](PlanIndex& entry) {
            entry = entry == none ? none : newIndexes[entry];
        };
        for (PlanEntry& entry : m_plan.entries)
            renumber(entry.waitsFor);
        for (PlanFolder& folder : m_plan.folders)
            renumber(folder.entry);
        for (PlanIndex& entry : m_standingAt)
            renumber(entry);
        m_plan.steps = OrderSteps(m_plan, m_standingAt);
        result.plan = std::move(m_plan);
        result.refused = std::move(m_refused);
        std::sort(result.refused.begin(), result.refused.end(),
                  [](const PlanRefusal& left, const PlanRefusal& right) { return left.entry < right.entry; });
        return result;
    }

    Model::RenamePlan m_plan;
    const std::vector<VyrHostPlatform::NameFolding> m_foldings;
    const std::vector<std::uint32_t> m_groups;
    Model::SlotTable<Occupants> m_occupants;
    Model::NamePool m_foldedNames;
    /// For each new folder the entry at its place.
    std::vector<PlanIndex> m_standingAt;
    std::vector<bool> m_isRefused;
    /// In the order in which it was found out.
    std::vector<PlanRefusal> m_refused;
};

} // namespace

PlannerResult PlanRenames(RenameDraft draft)
{
    return Planner(std::move(draft)).Plan();
}

} // namespace VyrHost::Rename
