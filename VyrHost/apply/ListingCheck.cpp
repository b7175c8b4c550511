// Compares the listings of folders with the names that entries are to have.
#include <VyrHost/apply/ListingCheck.h>

#include <VyrHost/apply/FolderCache.h>
#include <VyrHost/plan/SlotTable.h>

namespace VyrHost {

namespace {

class ListingCheck
{
public:
    ListingCheck(const RenamePlan& plan, const PlanProgress& progress, Standing standing, FileOperations& files)
        : m_plan(plan), m_progress(progress), m_standing(standing), m_files(files), m_isFound(plan.entries.size()),
          m_isWanted(plan.folders.size()), m_isExact(plan.folders.size())
    {}

    std::vector<PlanIndex> FindUnlisted()
    {
        ForEachStanding([this](PlanIndex, const Place& place) {
            if (!m_isWanted[place.folder])
                m_isExact[place.folder] = IsExact(place.folder);
            m_isWanted[place.folder] = true;
        });
        ForEachEntry([this](PlanIndex entry, const Place& place) { m_expected.Put(place, entry); });
        std::vector<bool> isListed(m_plan.folders.size());
        for (PlanIndex folder = 0; folder < m_plan.folders.size(); ++folder)
            isListed[folder] = m_isWanted[folder] && !m_isExact[folder] && List(folder);
        FolderCache folders(m_progress, m_files);
        std::vector<PlanIndex> unlisted;
        ForEachEntry([&](PlanIndex entry, const Place& place) {
            const bool isThere = isListed[place.folder]
                                     ? m_isFound[entry]
                                     : folders.Look(place).kind != VyrPlatform::FileSystem::Kind::Missing;
            if (!isThere)
                unlisted.push_back(entry);
        });
        return unlisted;
    }

private:
    /// Every entry that can stand under another name than the one that it was given.
    template <class Use>
    void ForEachEntry(Use use)
    {
        ForEachStanding([this, use](PlanIndex entry, const Place& place) {
            if (!m_isExact[place.folder])
                use(entry, place);
        });
    }

    template <class Use>
    void ForEachStanding(Use use)
    {
        for (PlanIndex entry = 0; entry < m_plan.entries.size(); ++entry)
            if (m_progress.Of(entry) == m_standing)
                use(entry, m_progress.PlaceOf(entry, m_standing));
    }

    [[nodiscard]] bool IsExact(PlanIndex folder)
    {
        const std::optional<CString> path = m_progress.PathOfFolder(folder);
        return path && m_files.GetNameFolding(*path) == VyrHostPlatform::NameFolding::None;
    }

    bool List(PlanIndex folder)
    {
        const std::optional<CString> path = m_progress.PathOfFolder(folder);
        return path && m_files.List(*path, [this, folder](const CString& name) {
            if (const PlanIndex* const entry = m_expected.Find(folder, name))
                m_isFound[*entry] = true;
        }) == 0;
    }

    const RenamePlan& m_plan;
    const PlanProgress& m_progress;
    Standing m_standing;
    FileOperations& m_files;
    SlotTable<PlanIndex> m_expected;
    std::vector<bool> m_isFound;
    std::vector<bool> m_isWanted;
    std::vector<bool> m_isExact;
};

} // namespace

std::vector<PlanIndex> FindUnlisted(const RenamePlan& plan, const PlanProgress& progress, Standing standing,
                                    FileOperations& files)
{
    return ListingCheck(plan, progress, standing, files).FindUnlisted();
}

} // namespace VyrHost
