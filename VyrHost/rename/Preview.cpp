// Makes new names, checks them, resolves conflicts, and plans the result.
#include <VyrHost/rename/Preview.h>

#include <VyrHost/rename/ConflictResolver.h>
#include <VyrHost/rename/NewPlace.h>
#include <VyrHost/rename/Planner.h>
#include <VyrHost/text/Errors.h>
#include <VyrHostPlatform/FolderPermission.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>

namespace VyrHost::Rename {

namespace {

using VyrHostPlatform::FolderPermission;
using VyrPlatform::FileSystem::Kind;

/// In code units; no system takes longer paths.
constexpr int longestPath = 32'767;

class Naming
{
public:
    Naming(Model::EntryList& list, const Groups& groups, NameSource& source, const Model::StayReason& stays,
           NamesAfter& after)
        : m_list(list), m_groups(groups), m_source(source), m_stays(stays), m_targets(list.folders, after),
          m_decisions(list.entries.size())
    {}

    void NameGroup(std::span<const std::uint32_t> members)
    {
        m_present.clear();
        for (const std::uint32_t entry : members)
            if (LookFor(entry))
                m_present.push_back(entry);
        if (m_present.empty())
            return;
        m_source.Name(m_list, m_groups, m_present, m_names);
        for (std::size_t place = 0; place < m_present.size(); ++place)
            Judge(m_present[place], m_names[place]);
        for (const std::uint32_t entry : m_present)
            if (m_decisions[entry].IsRename())
                CheckPermissions(entry);
        KeepTogether();
    }

    std::vector<Decision> TakeDecisions() { return std::move(m_decisions); }
    Causes TakeCauses() { return std::move(m_causes); }

private:
    /// Refuses a missing entry.
    bool LookFor(std::uint32_t index)
    {
        const Model::Entry& entry = m_list.entries[index];
        Decision& decision = m_decisions[index];
        decision.folder = entry.folder;
        if (!m_list.folders[entry.folder].exists)
            decision.Refuse(Reason::FolderNotRead);
        else if (entry.kind == Kind::Missing)
            decision.Refuse(Reason::NoSuchEntry);
        return decision.status != Model::Status::Refused;
    }

    void Judge(std::uint32_t index, const WantedName& wanted)
    {
        const Model::Entry& entry = m_list.entries[index];
        Decision& decision = m_decisions[index];
        if (wanted.reason != Reason::None) {
            decision.Refuse(wanted.reason);
            if (!wanted.cause.IsEmpty())
                m_causes[index] = wanted.cause;
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
        if (validity.reason != Reason::None)
            decision.Refuse(validity.reason);
        else if (moves && wanted.folder.GetLength() + wanted.name.GetLength() > longestPath)
            decision.Refuse(Reason::TooLong);
        else if (moves)
            Move(decision, m_list.folders[entry.folder].device, wanted);
    }

    void Move(Decision& decision, std::optional<std::uint64_t> device, const WantedName& wanted)
    {
        const TargetFolders::Target target = m_targets.Open(wanted.folder, wanted.shownFolder);
        decision.folder = target.folder;
        if (target.reason != Reason::None)
            decision.Refuse(target.reason);
        else if (device && target.device && *device != *target.device)
            decision.Refuse(Reason::OtherFileSystem);
        else if (decision.warning == VyrHostPlatform::NameFault::None)
            decision.warning = target.warning;
    }

    /// Refuses what the system would refuse.
    void CheckPermissions(std::uint32_t index)
    {
        Decision& decision = m_decisions[index];
        const Model::Entry& entry = m_list.entries[index];
        const FolderPermission from = PermissionOf(entry.folder);
        const FolderPermission to = PermissionOf(decision.folder);
        if (const std::uint32_t error = from.error != 0 ? from.error : to.error) {
            decision.Refuse(Reason::FolderLocked);
            m_causes[index] = Text::ErrorText(error);
        } else if (const std::u16string_view why = ReasonToStay(entry); !why.empty()) {
            decision.Refuse(Reason::MustStay);
            m_causes[index] = why;
        } else if (from.ownEntriesOnly && !VyrHostPlatform::IsOwnEntry(m_list.PathOf(entry))) {
            decision.Refuse(Reason::NotOwnEntry);
        }
    }

    [[nodiscard]] std::u16string_view ReasonToStay(const Model::Entry& entry) const
    {
        return m_stays ? m_stays(m_list.folders[entry.folder].path, entry.name, entry.kind) : std::u16string_view();
    }

    /// For a missing folder, the permission of its nearest existing parent.
    FolderPermission PermissionOf(std::uint32_t folder)
    {
        while (m_list.folders[folder].isNew)
            folder = m_list.folders[folder].parent;
        if (folder >= m_permissions.size())
            m_permissions.resize(m_list.folders.Count());
        std::optional<FolderPermission>& permission = m_permissions[folder];
        if (!permission)
            permission = VyrHostPlatform::GetFolderPermission(m_list.folders[folder].path);
        return *permission;
    }

    /// Refuses a whole group if one of its entries is refused.
    void KeepTogether()
    {
        const auto isRefused = [this](std::uint32_t entry) {
            return m_decisions[entry].status == Model::Status::Refused;
        };
        if (m_present.size() == 1 || std::none_of(m_present.begin(), m_present.end(), isRefused))
            return;
        for (const std::uint32_t entry : m_present)
            if (!isRefused(entry))
                m_decisions[entry].Refuse(Reason::CompanionRefused);
    }

    Model::EntryList& m_list;
    const Groups& m_groups;
    NameSource& m_source;
    const Model::StayReason& m_stays;
    TargetFolders m_targets;
    std::vector<Decision> m_decisions;
    Causes m_causes;
    /// By folder; queried once.
    std::vector<std::optional<FolderPermission>> m_permissions;
    std::vector<std::uint32_t> m_present;
    std::vector<WantedName> m_names;
};

/// Builds the draft for the planner from the decisions.
class DraftBuilder
{
public:
    /// @param count  the number of entries to be added.
    DraftBuilder(const Model::EntryList& list, std::size_t count) : m_list(list), m_folders(list.folders, m_draft.plan)
    {
        m_draft.plan.texts = list.folders.Texts();
        m_draft.plan.entries.reserve(count);
    }

    void Add(const Model::Entry& entry, const Decision& decision)
    {
        const Model::Place from{m_folders.Add(entry.folder), entry.name};
        const Model::Place to{m_folders.Add(decision.folder), decision.name};
        m_draft.plan.entries.push_back({.kind = entry.kind, .from = from, .to = to});
    }
    /// Sets the group of the last added entry; needed unless each is a group of its own.
    void AddGroup(std::uint32_t group) { m_draft.groups.push_back(group); }

    RenameDraft Take()
    {
        for (const std::uint32_t folder : m_folders.Numbers())
            m_draft.foldings.push_back(m_list.folders[folder].names.Folding());
        return std::move(m_draft);
    }

private:
    const Model::EntryList& m_list;
    RenameDraft m_draft;
    Model::PlannedFolders m_folders;
};

void Plan(const Model::EntryList& list, const Groups& groups, Preview& preview)
{
    const auto count =
        static_cast<std::size_t>(std::count_if(preview.decisions.begin(), preview.decisions.end(),
                                               [](const Decision& decision) { return decision.IsRename(); }));
    DraftBuilder draft(list, count);
    std::vector<std::uint32_t> drafted;
    drafted.reserve(count);
    for (std::uint32_t entry = 0; entry < preview.decisions.size(); ++entry) {
        if (!preview.decisions[entry].IsRename())
            continue;
        draft.Add(list.entries[entry], preview.decisions[entry]);
        if (groups.AreByStem())
            draft.AddGroup(groups.Of(entry));
        drafted.push_back(entry);
    }
    PlannerResult result = PlanRenames(draft.Take());
    for (const PlanRefusal& refusal : result.refused)
        preview.decisions[drafted[refusal.entry]].Refuse(refusal.reason);
    preview.entries = std::move(result.entries);
    for (std::uint32_t& entry : preview.entries)
        entry = drafted[entry];
    preview.plan = std::move(result.plan);
}

/// Whether a wanted name is taken.
bool HasConflict(const std::vector<Decision>& decisions)
{
    return std::any_of(decisions.begin(), decisions.end(), [](const Decision& decision) {
        return decision.reason == Reason::TargetExists || decision.reason == Reason::TwoToOne ||
               decision.reason == Reason::StemTaken;
    });
}

} // namespace

bool StopAtConflict(Preview& preview)
{
    if (!HasConflict(preview.decisions))
        return false;
    preview.plan = {};
    preview.entries.clear();
    for (Decision& decision : preview.decisions)
        if (decision.IsRename()) {
            decision.status = Model::Status::NotReached;
            decision.reason = Reason::Stopped;
        }
    return true;
}

Preview MakePreview(Model::EntryList& list, const Groups& groups, NameSource& names, const ConflictSettings& settings,
                    const Model::StayReason& stays, const NamingProgress& progress)
{
    constexpr std::size_t often = 32;
    Preview preview;
    {
        NamesAfter after(list.folders);
        Naming naming(list, groups, names, stays, after);
        for (std::size_t group = 0; group < groups.Count(); ++group) {
            naming.NameGroup(groups.Members(group));
            if (progress && group % often == 0)
                progress(group);
        }
        preview.decisions = naming.TakeDecisions();
        preview.causes = naming.TakeCauses();
        ResolveConflicts(list, groups, preview.decisions, after, settings, names.MayNumber());
    }
    // Memory use is at its peak here.
    list.folders.ForgetIndexes();
    Plan(list, groups, preview);
    return preview;
}

} // namespace VyrHost::Rename
