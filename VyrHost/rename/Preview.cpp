// Asks for new names, judges them, and has them allotted.
#include <VyrHost/rename/Preview.h>

#include <VyrHost/rename/ConflictResolver.h>
#include <VyrHost/rename/NameValidator.h>
#include <VyrHost/rename/TargetFolders.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>

namespace VyrHost::Rename {

namespace {

using VyrPlatform::FileSystem::Kind;

class Naming
{
public:
    Naming(Model::EntryList& list, NameSource& source, const WishReport& onWish)
        : m_list(list), m_source(source), m_onWish(onWish), m_targets(list.folders), m_decisions(list.entries.size())
    {}

    void NameGroup(std::span<const std::uint32_t> members)
    {
        m_present.clear();
        for (const std::uint32_t entry : members)
            if (LookFor(entry))
                m_present.push_back(entry);
        if (m_present.empty())
            return;
        m_source.Name(m_list, m_present, m_names);
        for (std::size_t place = 0; place < m_present.size(); ++place)
            Judge(m_present[place], m_names[place]);
        KeepTogether();
        ReportWishes();
    }

    std::vector<Model::Decision> TakeDecisions() { return std::move(m_decisions); }

private:
    /// Refuses an entry that is not there.
    bool LookFor(std::uint32_t index)
    {
        const Model::Entry& entry = m_list.entries[index];
        Model::Decision& decision = m_decisions[index];
        decision.folder = entry.folder;
        if (!m_list.folders[entry.folder].exists)
            decision.Refuse(Model::Reason::FolderNotRead);
        else if (entry.kind == Kind::Missing)
            decision.Refuse(Model::Reason::NoSuchEntry);
        return decision.status != Model::Status::Refused;
    }

    void Judge(std::uint32_t index, const WantedName& wanted)
    {
        const Model::Entry& entry = m_list.entries[index];
        Model::Decision& decision = m_decisions[index];
        if (wanted.reason != Model::Reason::None) {
            decision.Refuse(wanted.reason);
            return;
        }
        const bool moves = wanted.folder != m_list.folders[entry.folder].path;
        if (!moves && wanted.name == entry.name) {
            decision.name = entry.name;
            decision.status = Model::Status::Unchanged;
            return;
        }
        decision.datesTaken = wanted.datesTaken;
        decision.name = m_list.folders.Intern(wanted.name);
        const NameValidity validity = ValidateName(decision.name, entry.name);
        decision.warning = validity.warning;
        if (validity.reason != Model::Reason::None)
            decision.Refuse(validity.reason);
        else if (moves)
            Move(decision, m_list.folders[entry.folder].device, wanted);
    }

    void Move(Model::Decision& decision, std::optional<std::uint64_t> device, const WantedName& wanted)
    {
        const TargetFolders::Target target = m_targets.Open(wanted.folder, wanted.shownFolder);
        decision.folder = target.folder;
        if (target.reason != Model::Reason::None)
            decision.Refuse(target.reason);
        else if (device && target.device && *device != *target.device)
            decision.Refuse(Model::Reason::OtherFileSystem);
        else if (decision.warning == VyrHostPlatform::NameFault::None)
            decision.warning = target.warning;
    }

    /// Where one of those that keep together is refused, all are.
    void KeepTogether()
    {
        const auto isRefused = [this](std::uint32_t entry) {
            return m_decisions[entry].status == Model::Status::Refused;
        };
        if (m_present.size() == 1 || std::none_of(m_present.begin(), m_present.end(), isRefused))
            return;
        for (const std::uint32_t entry : m_present)
            if (!isRefused(entry))
                m_decisions[entry].Refuse(Model::Reason::CompanionRefused);
    }

    void ReportWishes() const
    {
        if (!m_onWish)
            return;
        for (const std::uint32_t entry : m_present)
            if (m_decisions[entry].IsRename())
                m_onWish(entry);
    }

    Model::EntryList& m_list;
    NameSource& m_source;
    const WishReport& m_onWish;
    TargetFolders m_targets;
    std::vector<Model::Decision> m_decisions;
    std::vector<std::uint32_t> m_present;
    std::vector<WantedName> m_names;
};

} // namespace

std::vector<Model::Decision> Decide(Model::EntryList& list, const Groups& groups, NameSource& names,
                                    const ConflictSettings& settings, const NamingProgress& progress,
                                    const WishReport& onWish)
{
    constexpr std::size_t Often = 32;
    Naming naming(list, names, onWish);
    for (std::size_t group = 0; group < groups.Count(); ++group) {
        naming.NameGroup(groups.Members(group));
        if (progress && group % Often == 0)
            progress(group);
    }
    std::vector<Model::Decision> decisions = naming.TakeDecisions();
    ResolveConflicts(list, groups, decisions, settings, names.MayNumber());
    return decisions;
}

} // namespace VyrHost::Rename
