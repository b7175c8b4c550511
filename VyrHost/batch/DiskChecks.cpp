// Queries the sources of a batch on two threads.
#include <VyrHost/batch/DiskChecks.h>

#include <VyrHost/batch/FileOperations.h>
#include <VyrHost/model/SlotTable.h>
#include <VyrHost/model/TwoThreads.h>

namespace VyrHost::Batch {

std::vector<VyrPlatform::FileState> LookAtSources(const Model::RenamePlan& plan, FileOperations& files)
{
    const PlanProgress before(plan, 0);
    std::vector<VyrPlatform::FileState> states(plan.entries.size());
    const auto look = [&](std::size_t first, std::size_t end) {
        FolderCache folders(before, files);
        for (std::size_t entry = first; entry < end; ++entry)
            states[entry] = folders.Look(plan.entries[entry].from);
    };
    Model::OnTwoThreads(0, states.size(), look);
    return states;
}

namespace {

class ListingCheck
{
public:
    ListingCheck(const Model::RenamePlan& plan, const PlanProgress& progress, Location location, FileOperations& files)
        : m_plan(plan), m_progress(progress), m_standing(location), m_files(files), m_isFound(plan.entries.size()),
          m_isWanted(plan.folders.size()), m_isExact(plan.folders.size())
    {}

    std::vector<Model::PlanIndex> FindUnlisted()
    {
        ForEachStanding([this](Model::PlanIndex, const Model::Place& place) {
            if (!m_isWanted[place.folder])
                m_isExact[place.folder] = IsExact(place.folder);
            m_isWanted[place.folder] = true;
        });
        ForEachEntry([this](Model::PlanIndex entry, const Model::Place& place) { m_expected.Put(place, entry); });
        std::vector<bool> isListed(m_plan.folders.size());
        for (Model::PlanIndex folder = 0; folder < m_plan.folders.size(); ++folder)
            isListed[folder] = m_isWanted[folder] && !m_isExact[folder] && List(folder);
        FolderCache folders(m_progress, m_files);
        std::vector<Model::PlanIndex> unlisted;
        ForEachEntry([&](Model::PlanIndex entry, const Model::Place& place) {
            const bool isThere = isListed[place.folder]
                                     ? m_isFound[entry]
                                     : folders.Look(place).kind != VyrPlatform::FileSystem::Kind::Missing;
            if (!isThere)
                unlisted.push_back(entry);
        });
        return unlisted;
    }

private:
    /// Passes on each entry to which the file system may have given another name than requested.
    template <class Use>
    void ForEachEntry(Use use)
    {
        ForEachStanding([this, use](Model::PlanIndex entry, const Model::Place& place) {
            if (!m_isExact[place.folder])
                use(entry, place);
        });
    }

    template <class Use>
    void ForEachStanding(Use use)
    {
        for (Model::PlanIndex entry = 0; entry < m_plan.entries.size(); ++entry)
            if (m_progress.Of(entry) == m_standing)
                use(entry, m_progress.PlaceOf(entry, m_standing));
    }

    [[nodiscard]] bool IsExact(Model::PlanIndex folder)
    {
        const std::optional<CString> path = m_progress.PathOfFolder(folder);
        return path && m_files.GetNameFolding(*path) == VyrHostPlatform::NameFolding::None;
    }

    bool List(Model::PlanIndex folder)
    {
        const std::optional<CString> path = m_progress.PathOfFolder(folder);
        return path && m_files.List(*path, [this, folder](const CString& name) {
            if (const Model::PlanIndex* const entry = m_expected.Find(folder, name))
                m_isFound[*entry] = true;
        }) == 0;
    }

    const Model::RenamePlan& m_plan;
    const PlanProgress& m_progress;
    Location m_standing;
    FileOperations& m_files;
    Model::SlotTable<Model::PlanIndex> m_expected;
    std::vector<bool> m_isFound;
    std::vector<bool> m_isWanted;
    std::vector<bool> m_isExact;
};

} // namespace

std::vector<Model::PlanIndex> FindUnlisted(const Model::RenamePlan& plan, const PlanProgress& progress,
                                           Location location, FileOperations& files)
{
    return ListingCheck(plan, progress, location, files).FindUnlisted();
}

} // namespace VyrHost::Batch
