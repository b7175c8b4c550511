// Turns paths into places, finds out who waits for whom, refuses what cannot be done, and has the rest ordered.
#include <VyrHost/rename/Planner.h>

#include <VyrHost/model/Prefetch.h>
#include <VyrHost/rename/FolderTree.h>
#include <VyrHost/rename/StepOrder.h>

#include <algorithm>
#include <utility>

namespace VyrHost::Rename {

namespace {

class Planner
{
public:
    Planner(const Model::RenameList& list, const FoldingOfFolder& foldingOf)
        : m_list(list), m_tree(m_draft, foldingOf), m_isRefused(list.renames.size())
    {
        m_draft.texts = list.texts;
    }

    PlannerResult Plan()
    {
        PlaceEntries();
        PlaceNewFolders();
        FindWhoStandsWhere();
        FindFoldersInTheirPlaces();
        RefuseTangledFolders();
        RefuseDependents();
        return Finish();
    }

private:
    /// A draft entry's places are empty once it is refused for them.
    void PlaceEntries()
    {
        m_draft.entries.reserve(m_list.renames.size());
        m_occupants.Reserve(2 * m_list.renames.size());
        for (const Model::PlannedRename& rename : m_list.renames) {
            const std::optional<Model::Place> from = m_tree.PlaceOf(rename.from);
            const std::optional<Model::Place> to = m_tree.PlaceOf(rename.to);
            const auto entry = static_cast<Model::PlanIndex>(m_draft.entries.size());
            m_draft.entries.push_back(
                {.kind = rename.kind, .from = from.value_or(Model::Place()), .to = to.value_or(Model::Place())});
            if (!from)
                Refuse(entry, u"the path is not a full path of a file or folder");
            else if (!to)
                Refuse(entry, u"the new path is not a full path that a file or folder can have");
            else if (*from == *to)
                Refuse(entry, u"the new path is the old one");
        }
    }

    void PlaceNewFolders()
    {
        for (const CString& path : m_list.newFolders) {
            const std::optional<Model::Place> place = m_tree.PlaceOf(Model::Cut(path, *m_draft.texts));
            if (place)
                m_draft.folders[m_tree.Collect(*place, path)].isNew = true;
        }
    }

    void FindWhoStandsWhere()
    {
        for (Model::PlanIndex entry = 0; entry < m_draft.entries.size(); ++entry) {
            Expect(entry + Model::PrefetchDistance, &Model::PlanEntry::from);
            const Model::Place& from = m_draft.entries[entry].from;
            if (from.folder != Model::none && m_occupants.Put(m_tree.SlotOf(from), {.before = entry}).before != entry)
                Refuse(entry, u"the path stands in the list twice");
        }
        for (Model::PlanIndex entry = 0; entry < m_draft.entries.size(); ++entry) {
            Expect(entry + Model::PrefetchDistance, &Model::PlanEntry::to);
            if (IsRefused(entry))
                continue;
            Model::PlanEntry& rename = m_draft.entries[entry];
            Occupants& occupants = m_occupants.Put(m_tree.SlotOf(rename.to), {});
            if (occupants.after != Model::none)
                Refuse(entry, u"another entry of the list gets the same new path");
            else
                occupants.after = entry;
            rename.waitsFor = occupants.before;
        }
    }

    void Expect(std::size_t entry, Model::Place Model::PlanEntry::*end) const
    {
        if (entry >= m_draft.entries.size())
            return;
        const Model::Place& place = m_draft.entries[entry].*end;
        if (place.folder != Model::none && m_tree.TakesNamesAsTheyAre(place.folder))
            m_occupants.Expect(place);
    }

    /// Tells the folders that the batch renames and makes from those that stay.
    void FindFoldersInTheirPlaces()
    {
        m_standingAt.assign(m_draft.folders.size(), Model::none);
        for (Model::PlanIndex folder = 0; folder < m_draft.folders.size(); ++folder) {
            Model::PlanFolder& planned = m_draft.folders[folder];
            if (planned.place.folder == Model::none)
                continue;
            const auto [standing, coming] = OccupantsOf(m_tree.SlotOf(planned.place));
            // Entries move into a folder by its name before the batch, also where the batch gives it another one.
            if (standing != Model::none && m_draft.entries[standing].kind == VyrPlatform::FileSystem::Kind::Folder)
                planned.isNew = false;
            if (planned.isNew) {
                m_standingAt[folder] = standing;
                RefuseIfAny(coming, u"a folder is made at the new path");
            } else if (standing != Model::none && !IsRefused(standing)) {
                planned.entry = standing;
                m_draft.entries[standing].folder = folder;
            }
        }
    }

    void RefuseTangledFolders()
    {
        const std::vector<Model::PlanIndex> order = Model::OrderFolders(m_draft);
        if (order.size() == m_draft.folders.size())
            return;
        std::vector<bool> isTangled(m_draft.folders.size(), true);
        for (const Model::PlanIndex folder : order)
            isTangled[folder] = false;
        for (Model::PlanIndex folder = 0; folder < m_draft.folders.size(); ++folder) {
            const Model::PlanIndex entry = m_draft.folders[folder].entry;
            if (isTangled[folder] && entry != Model::none && isTangled[m_draft.entries[entry].to.folder])
                Refuse(entry, u"the folder would end up inside itself");
        }
    }

    /// What needs the place of a refused entry is refused too: it is not vacated.
    void RefuseDependents()
    {
        const std::vector<std::vector<Model::PlanIndex>> insideNewFolders =
            m_refused.empty() ? std::vector<std::vector<Model::PlanIndex>>() : ListInsideNewFolders();
        for (std::size_t next = 0; next < m_refused.size(); ++next) {
            const Model::PlanIndex refused = m_refused[next].entry;
            const Model::Place& from = m_draft.entries[refused].from;
            if (from.folder == Model::none)
                continue;
            const Model::Place slot = m_tree.SlotOf(from);
            const auto [standing, coming] = OccupantsOf(slot);
            if (standing != refused)
                continue;
            RefuseIfAny(coming, u"the new path is taken by an entry that keeps it");
            const Model::PlanIndex folder = m_tree.FolderAt(slot);
            if (folder != Model::none && m_draft.folders[folder].isNew)
                for (const Model::PlanIndex entry : insideNewFolders[folder])
                    Refuse(entry, u"its folder cannot be made: an entry keeps the path");
        }
    }

    /// For each topmost new folder the entries that move into it and into the new folders below it.
    [[nodiscard]] std::vector<std::vector<Model::PlanIndex>> ListInsideNewFolders() const
    {
        std::vector<Model::PlanIndex> topmost(m_draft.folders.size(), Model::none);
        for (Model::PlanIndex folder = 0; folder < m_draft.folders.size(); ++folder) {
            const Model::PlanIndex parent = m_draft.folders[folder].place.folder;
            if (m_draft.folders[folder].isNew)
                topmost[folder] = topmost[parent] == Model::none ? folder : topmost[parent];
        }
        std::vector<std::vector<Model::PlanIndex>> inside(m_draft.folders.size());
        for (Model::PlanIndex entry = 0; entry < m_draft.entries.size(); ++entry) {
            const Model::PlanIndex folder = m_draft.entries[entry].to.folder;
            if (folder != Model::none && topmost[folder] != Model::none)
                inside[topmost[folder]].push_back(entry);
        }
        return inside;
    }

    /// Who stands at a place before the batch, and who after it.
    struct Occupants
    {
        Model::PlanIndex before = Model::none;
        Model::PlanIndex after = Model::none;
    };

    [[nodiscard]] Occupants OccupantsOf(const Model::Place& slot) const
    {
        const Occupants* const occupants = m_occupants.Find(slot);
        return occupants ? *occupants : Occupants();
    }

    struct Refused
    {
        Model::PlanIndex entry;
        const char16_t* reason;
    };

    [[nodiscard]] bool IsRefused(Model::PlanIndex entry) const { return m_isRefused[entry]; }

    void Refuse(Model::PlanIndex entry, const char16_t* reason)
    {
        if (IsRefused(entry))
            return;
        m_isRefused[entry] = true;
        m_refused.push_back({entry, reason});
    }

    void RefuseIfAny(Model::PlanIndex entry, const char16_t* reason)
    {
        if (entry != Model::none)
            Refuse(entry, reason);
    }

    /// Leaves the refused entries out, and has the rest ordered.
    PlannerResult Finish()
    {
        PlannerResult result;
        std::vector<Model::PlanIndex> newIndexes(m_draft.entries.size(), Model::none);
        result.indexes.reserve(m_draft.entries.size());
        for (Model::PlanIndex entry = 0; entry < m_draft.entries.size(); ++entry) {
            if (IsRefused(entry))
                continue;
            const auto kept = static_cast<Model::PlanIndex>(result.indexes.size());
            newIndexes[entry] = kept;
            result.indexes.push_back(entry);
            if (kept != entry)
                m_draft.entries[kept] = m_draft.entries[entry];
        }
        std::sort(m_refused.begin(), m_refused.end(),
                  [](const Refused& left, const Refused& right) { return left.entry < right.entry; });
        for (const auto& [entry, reason] : m_refused)
            result.refused.push_back({entry, reason});
        m_draft.entries.resize(result.indexes.size());
        result.plan.entries = std::move(m_draft.entries);
        const auto renumber = [&newIndexes](Model::PlanIndex& entry) {
            entry = entry == Model::none ? Model::none : newIndexes[entry];
        };
        result.plan.folders = std::move(m_draft.folders);
        result.plan.texts = m_draft.texts;
        for (Model::PlanEntry& entry : result.plan.entries)
            renumber(entry.waitsFor);
        for (Model::PlanFolder& folder : result.plan.folders)
            renumber(folder.entry);
        for (Model::PlanIndex& entry : m_standingAt)
            renumber(entry);
        result.plan.steps = OrderSteps(result.plan, m_standingAt);
        return result;
    }

    const Model::RenameList& m_list;
    Model::RenamePlan m_draft;
    FolderTree m_tree;
    Model::SlotTable<Occupants> m_occupants;
    /// For each new folder the entry at its place.
    std::vector<Model::PlanIndex> m_standingAt;
    std::vector<bool> m_isRefused;
    /// In the order in which it was found out.
    std::vector<Refused> m_refused;
};

} // namespace

PlannerResult PlanRenames(const Model::RenameList& list, const FoldingOfFolder& foldingOf)
{
    return Planner(list, foldingOf).Plan();
}

} // namespace VyrHost::Rename
