// Finds the dependencies between renames, refuses impossible ones, and has the rest ordered.
#include <VyrHost/rename/Planner.h>

#include <algorithm>
#include <array>
#include <bit>
#include <functional>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace VyrHost::Rename {

namespace {

using Model::none;
using Model::Place;
using Model::PlanEntry;
using Model::PlanFolder;
using Model::PlanIndex;
using VyrHostPlatform::NameFolding;

/// Finds renames by one of their ends, with names compared like their file systems. Of several with the same end the
/// first counts.
class RenamesByPlace
{
public:
    using Foldings = std::vector<NameFolding>;
    using End = Place PlanEntry::*;

    /// @param foldings  one for each folder of `plan`. Both must outlive this, with unchanged ends.
    RenamesByPlace(const Model::RenamePlan& plan, const Foldings& foldings, End end)
        : m_plan(plan), m_foldings(foldings), m_end(end), m_buckets(std::bit_ceil(plan.entries.size() * 2 + 1))
    {
        ForEachBucket(end, [](PlanIndex entry, std::uint32_t tag, Bucket& bucket) {
            if (bucket.entry == none)
                bucket = {tag, entry};
        });
    }

    /// The rename whose end is `place`; `none` if there is none.
    [[nodiscard]] PlanIndex Find(const Place& place) const { return m_buckets[BucketOf(place, HashOf(place))].entry; }

    /// Calls `use` for each rename of the plan with the result of Find for its `end`.
    template <class Use>
    void FindEach(End end, Use use)
    {
        ForEachBucket(end, [&use](PlanIndex entry, std::uint32_t, const Bucket& bucket) { use(entry, bucket.entry); });
    }

private:
    /// The upper half of the hash of an end, and its entry.
    struct Bucket
    {
        std::uint32_t tag = 0;
        PlanIndex entry = none;
    };

    /// How many ends ahead buckets are prefetched. Without it the preview of a million renames takes a quarter more
    /// processor time.
    static constexpr std::size_t ahead = 8;

    template <class Use>
    void ForEachBucket(End end, Use use)
    {
        std::array<std::uint64_t, ahead> hashes{};
        const std::size_t count = m_plan.entries.size();
        for (std::size_t index = 0; index < count + hashes.size(); ++index) {
            std::uint64_t& hash = hashes[index % hashes.size()];
            if (index >= hashes.size()) {
                const auto entry = static_cast<PlanIndex>(index - hashes.size());
                use(entry, TagOf(hash), m_buckets[BucketOf(m_plan.entries[entry].*end, hash)]);
            }
            if (index < count) {
                hash = HashOf(m_plan.entries[index].*end);
                __builtin_prefetch(&m_buckets[StartOf(hash)]);
            }
        }
    }

    [[nodiscard]] static std::uint32_t TagOf(std::uint64_t hash) { return static_cast<std::uint32_t>(hash >> 32); }
    [[nodiscard]] std::size_t StartOf(std::uint64_t hash) const { return (hash >> 20) & (m_buckets.size() - 1); }

    [[nodiscard]] std::uint64_t HashOf(const Place& place) const
    {
        const NameFolding folding = m_foldings[place.folder];
        const std::hash<std::u16string_view> hash;
        const std::size_t name = folding == NameFolding::None
                                     ? hash(place.name.View())
                                     : hash(VyrHostPlatform::FoldName(place.name.View(), folding));
        return (name ^ place.folder) * std::uint64_t{0x9E3779B97F4A7C15};
    }

    [[nodiscard]] bool IsSame(const Place& left, const Place& right) const
    {
        if (left == right)
            return true;
        const NameFolding folding = m_foldings[left.folder];
        return left.folder == right.folder && folding != NameFolding::None &&
               VyrHostPlatform::FoldName(left.name.View(), folding) ==
                   VyrHostPlatform::FoldName(right.name.View(), folding);
    }

    /// The bucket of `place`, or the free one where it belongs. Half of the buckets are free.
    [[nodiscard]] std::size_t BucketOf(const Place& place, std::uint64_t hash) const
    {
        const std::size_t mask = m_buckets.size() - 1;
        std::size_t at = StartOf(hash);
        while (m_buckets[at].entry != none &&
               (m_buckets[at].tag != TagOf(hash) || !IsSame(m_plan.entries[m_buckets[at].entry].*m_end, place)))
            at = (at + 1) & mask;
        return at;
    }

    const Model::RenamePlan& m_plan;
    const Foldings& m_foldings;
    const End m_end;
    std::vector<Bucket> m_buckets;
};

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
        m_coming.reset();
        return Finish();
    }

private:
    void FindWhoStandsWhere()
    {
        m_standingAt.assign(m_plan.folders.size(), none);
        FindWhoLeaves();
        m_coming.emplace(m_plan, m_foldings, &PlanEntry::to);
        m_coming->FindEach(&PlanEntry::to, [this](PlanIndex entry, PlanIndex first) {
            if (first != entry)
                Refuse(entry, Reason::TwoToOne);
        });
    }

    /// Finds, for each entry and each folder, the entry that is at its place before the batch.
    void FindWhoLeaves()
    {
        RenamesByPlace leaving(m_plan, m_foldings, &PlanEntry::from);
        leaving.FindEach(&PlanEntry::to,
                         [this](PlanIndex entry, PlanIndex standing) { m_plan.entries[entry].waitsFor = standing; });
        for (PlanIndex folder = 0; folder < m_plan.folders.size(); ++folder)
            if (m_plan.folders[folder].place.folder != none)
                m_standingAt[folder] = leaving.Find(m_plan.folders[folder].place);
    }

    /// Finds the folders that the batch renames or creates.
    void FindFoldersInTheirPlaces()
    {
        for (PlanIndex folder = 0; folder < m_plan.folders.size(); ++folder) {
            PlanFolder& planned = m_plan.folders[folder];
            if (planned.place.folder == none)
                continue;
            const PlanIndex standing = std::exchange(m_standingAt[folder], none);
            const PlanIndex coming = m_coming->Find(planned.place);
            // Entries refer to a destination folder by its name before the batch, even if the batch renames it.
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

    /// Refuses entries that need the place of a refused one, since that is not vacated, and the others of its group.
    void RefuseDependents()
    {
        if (m_refused.empty())
            return;
        const std::vector<std::vector<PlanIndex>> waiting = ListWaitingForFolders();
        const std::unordered_multimap<std::uint32_t, PlanIndex> members = MembersByGroup();
        for (std::size_t next = 0; next < m_refused.size(); ++next) {
            const PlanIndex refused = m_refused[next].entry;
            if (const PlanIndex coming = m_coming->Find(m_plan.entries[refused].from); coming != none)
                Refuse(coming, Reason::PlaceKept);
            for (const PlanIndex entry : waiting[refused])
                Refuse(entry, Reason::FolderKept);
            if (m_groups.empty())
                continue;
            const auto [first, end] = members.equal_range(m_groups[refused]);
            for (auto member = first; member != end; ++member)
                Refuse(member->second, Reason::CompanionRefused);
        }
    }

    [[nodiscard]] std::unordered_multimap<std::uint32_t, PlanIndex> MembersByGroup() const
    {
        std::unordered_multimap<std::uint32_t, PlanIndex> members;
        for (PlanIndex entry = 0; entry < m_groups.size(); ++entry)
            members.emplace(m_groups[entry], entry);
        return members;
    }

    /// For each entry at whose place a folder is created, the entries that move into that folder and into new folders
    /// below it.
    [[nodiscard]] std::vector<std::vector<PlanIndex>> ListWaitingForFolders() const
    {
        // An entry in the way is at the path of the topmost new folder.
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

    void Refuse(PlanIndex entry, Reason reason)
    {
        if (m_isRefused[entry])
            return;
        m_isRefused[entry] = true;
        m_refused.push_back({entry, reason});
    }

    PlannerResult Finish()
    {
        PlannerResult result;
        result.entries = LeaveRefusedOut();
        m_plan.steps = OrderSteps(m_plan, m_standingAt);
        result.plan = std::move(m_plan);
        result.refused = std::move(m_refused);
        std::sort(result.refused.begin(), result.refused.end(),
                  [](const PlanRefusal& left, const PlanRefusal& right) { return left.entry < right.entry; });
        return result;
    }

    /// @return the old index of each remaining entry.
    std::vector<PlanIndex> LeaveRefusedOut()
    {
        std::vector<PlanIndex> before;
        before.reserve(m_plan.entries.size());
        std::vector<PlanIndex> newIndexes(m_plan.entries.size(), none);
        for (PlanIndex entry = 0; entry < m_plan.entries.size(); ++entry) {
            if (m_isRefused[entry])
                continue;
            const auto kept = static_cast<PlanIndex>(before.size());
            newIndexes[entry] = kept;
            before.push_back(entry);
            if (kept != entry)
                m_plan.entries[kept] = m_plan.entries[entry];
        }
        m_plan.entries.resize(before.size());
        const auto renumber = [&newIndexes](PlanIndex& entry) {
            entry = entry == none ? none : newIndexes[entry];
        };
        for (PlanEntry& entry : m_plan.entries)
            renumber(entry.waitsFor);
        for (PlanFolder& folder : m_plan.folders)
            renumber(folder.entry);
        for (PlanIndex& entry : m_standingAt)
            renumber(entry);
        return before;
    }

    Model::RenamePlan m_plan;
    const std::vector<VyrHostPlatform::NameFolding> m_foldings;
    const std::vector<std::uint32_t> m_groups;
    /// By their new places.
    std::optional<RenamesByPlace> m_coming;
    /// For each new folder, the entry at its place.
    std::vector<PlanIndex> m_standingAt;
    std::vector<bool> m_isRefused;
    /// In the order of discovery.
    std::vector<PlanRefusal> m_refused;
};

} // namespace

PlannerResult PlanRenames(RenameDraft draft)
{
    return Planner(std::move(draft)).Plan();
}

} // namespace VyrHost::Rename
