// Assigns names in the order of the list, and withdraws a name when another entry has to keep it.
#include <VyrHost/rename/ConflictResolver.h>

#include <VyrHost/rename/NewPlace.h>
#include <VyrHostPlatform/NameFolding.h>
#include <VyrLibraryUtils/FileUtils.h>

#include <algorithm>
#include <map>
#include <optional>
#include <unordered_map>
#include <utility>

namespace VyrHost::Rename {

namespace {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FileSystem::Kind;

class ConflictResolver
{
public:
    ConflictResolver(Model::EntryList& list, const Groups& groups, std::vector<Decision>& decisions, NamesAfter& after,
                     const ConflictSettings& settings, bool mayNumber)
        : m_list(list), m_groups(groups), m_decisions(decisions), m_after(after), m_settings(settings),
          m_mayNumber(mayNumber)
    {}

    void Run()
    {
        for (std::uint32_t entry = 0; entry < m_decisions.size(); ++entry) {
            if (m_decisions[entry].IsRename())
                continue;
            HoldOwnName(entry);
        }
        for (std::size_t group = 0; group < m_groups.Count(); ++group) {
            if (IsToSettle(group))
                Place(static_cast<std::uint32_t>(group));
        }
    }

private:
    /// Whether the entry wants a name, and so takes part in the decision of its group.
    [[nodiscard]] bool TakesPart(std::uint32_t entry) const
    {
        return m_decisions[entry].IsRename() || m_decisions[entry].status == Model::Status::Unchanged;
    }

    [[nodiscard]] bool IsToSettle(std::size_t group) const
    {
        const auto members = m_groups.Members(group);
        return std::any_of(members.begin(), members.end(),
                           [this](std::uint32_t entry) { return m_decisions[entry].IsRename(); });
    }

    void Place(std::uint32_t group)
    {
        Decide(group, false);
        while (!m_pending.empty()) {
            const std::uint32_t next = m_pending.back();
            m_pending.pop_back();
            Decide(next, true);
        }
    }

    /// Assigns names to the members of a group, or decides that they keep their own.
    /// @param isAgain  whether the members may have names already.
    void Decide(std::uint32_t group, bool isAgain)
    {
        m_members.clear();
        for (const std::uint32_t entry : m_groups.Members(group))
            if (TakesPart(entry))
                m_members.push_back(entry);
        // A member whose name does not change has it from the beginning.
        if (isAgain || m_members.size() > 1)
            for (const std::uint32_t entry : m_members)
                Release(entry);
        const std::optional<Conflict> conflict = GiveWanted(group);
        if (!conflict)
            return;
        if (m_settings.mode == OnConflict::Number && m_mayNumber && !conflict->isWithin)
            Number();
        else
            Stay(m_settings.mode == OnConflict::Skip ? Model::Status::Skipped : Model::Status::Refused,
                 conflict->reason);
    }

    struct Conflict
    {
        Reason reason;
        /// Whether another member of the group takes the name: numbering does not help then.
        bool isWithin;
    };

    /// Gives each member the name that it wants, or none of them if one of the names or stems is taken.
    std::optional<Conflict> GiveWanted(std::uint32_t group)
    {
        for (std::size_t place = 0; place < m_members.size(); ++place) {
            const std::uint32_t entry = m_members[place];
            Model::NameRecord& record = Names(entry).Add(WantedName(entry));
            const bool isStemFree = IsStemFree(entry, WantedName(entry));
            if (isStemFree && m_after.IsFree(m_decisions[entry].folder, record)) {
                Give(entry, record, WantedName(entry), Model::Status::Done);
                continue;
            }
            const bool isWithin = record.owner < newFolder && m_groups.Of(record.owner) == group;
            const Conflict conflict{isStemFree ? ConflictReason(record) : Reason::StemTaken, isWithin};
            for (std::size_t given = 0; given < place; ++given)
                Release(m_members[given]);
            return conflict;
        }
        return std::nullopt;
    }

    /// Numbers all members with the first number that is free for each of them.
    void Number()
    {
        std::vector<NumberedName> names;
        for (const std::uint32_t entry : m_members)
            names.push_back(NumberedNameOf(entry));
        std::uint64_t& attempt = AttemptOf(m_members.front());
        const std::uint64_t end = CountNumbers(m_settings.numbering.step);
        std::vector<CString> candidates(m_members.size());
        for (; attempt < end; ++attempt) {
            bool areFree = true;
            for (std::size_t place = 0; place < m_members.size(); ++place) {
                const std::uint32_t entry = m_members[place];
                candidates[place] = names[place].With(m_settings.numbering, m_settings.digits, attempt);
                if (const Reason reason = ValidateName(candidates[place], m_list.entries[entry].name).reason;
                    reason != Reason::None) {
                    Stay(Model::Status::Refused, reason);
                    return;
                }
                areFree = areFree && m_after.IsFree(m_decisions[entry].folder, candidates[place]) &&
                          IsStemFree(entry, candidates[place]);
            }
            if (areFree) {
                ++attempt;
                GiveNumbered(candidates);
                return;
            }
        }
        Stay(Model::Status::Refused, Reason::NoFreeNumber);
    }

    void GiveNumbered(const std::vector<CString>& candidates)
    {
        for (std::size_t place = 0; place < m_members.size(); ++place) {
            const std::uint32_t entry = m_members[place];
            m_wanted.try_emplace(entry, m_decisions[entry].name);
            const Model::InternedName name = m_list.folders.Intern(candidates[place]);
            Give(entry, Names(entry).Add(name), name, Model::Status::Numbered);
        }
    }

    /// @param record  the record of `name`, which may have another spelling.
    void Give(std::uint32_t entry, Model::NameRecord& record, Model::InternedName name, Model::Status status)
    {
        Decision& decision = m_decisions[entry];
        const Model::Entry& own = m_list.entries[entry];
        record.owner = entry;
        if (HasStem(entry))
            m_stems[StemOf(entry, decision.folder, name)] = m_groups.Of(entry);
        decision.name = name;
        decision.status = decision.folder == own.folder && name == own.name ? Model::Status::Unchanged : status;
    }

    /// Makes the members keep their names. Entries that were to get those names are decided again.
    void Stay(Model::Status status, Reason reason)
    {
        for (const std::uint32_t entry : m_members) {
            Decision& decision = m_decisions[entry];
            decision.name = WantedName(entry);
            decision.status = status;
            decision.reason = reason;
            HoldOwnName(entry);
        }
    }

    void HoldOwnName(std::uint32_t entry)
    {
        const Model::Entry& own = m_list.entries[entry];
        if (own.kind == Kind::Missing)
            return;
        Model::NameRecord& record = m_after.In(own.folder).Add(own.name);
        if (record.owner < newFolder && record.owner != entry)
            m_pending.push_back(m_groups.Of(record.owner));
        record.owner = entry;
        if (HasStem(entry))
            HoldOwnStem(entry);
    }

    void HoldOwnStem(std::uint32_t entry)
    {
        const Model::Entry& own = m_list.entries[entry];
        const std::uint32_t group = m_groups.Of(entry);
        const auto [held, isNew] = m_stems.try_emplace(StemOf(entry, own.folder, own.name), group);
        if (held->second != group)
            m_pending.push_back(std::exchange(held->second, group));
    }

    /// Releases the name and the stem of the entry.
    void Release(std::uint32_t entry)
    {
        Model::NameRecord* const record = Names(entry).Find(m_decisions[entry].name);
        if (!record || record->owner != entry)
            return;
        record->owner = Model::noEntry;
        if (!HasStem(entry))
            return;
        const auto held = m_stems.find(StemOf(entry, m_decisions[entry].folder, m_decisions[entry].name));
        if (held != m_stems.end() && held->second == m_groups.Of(entry))
            m_stems.erase(held);
    }

    /// The name that the entry wanted before it was numbered.
    [[nodiscard]] Model::InternedName WantedName(std::uint32_t entry) const
    {
        const auto found = m_wanted.find(entry);
        return found != m_wanted.end() ? found->second : m_decisions[entry].name;
    }

    [[nodiscard]] NumberedName NumberedNameOf(std::uint32_t entry)
    {
        const Model::InternedName wanted = WantedName(entry);
        const std::uint32_t main = m_groups.MainFileOf(entry);
        if (main != Model::noEntry && wanted.View().starts_with(WantedName(main).View()))
            return NumberedNameOf(main).OfSidecar(wanted.View().substr(WantedName(main).View().size()));
        const Model::Folder& folder = m_list.folders[m_decisions[entry].folder];
        // Split like the engine: by the kind of the entry that has the name, if there is one.
        const Model::NameRecord* const listed = folder.names.Find(wanted);
        const Kind kind = listed ? listed->kind : m_list.entries[entry].kind;
        return {CString::Join({folder.path, wanted}), kind == Kind::Folder};
    }

    /// The number of the next attempt for entries that want the same name or stem.
    std::uint64_t& AttemptOf(std::uint32_t entry)
    {
        return HasStem(entry) ? m_stemAttempts[StemOf(entry, m_decisions[entry].folder, WantedName(entry))]
                              : m_attempts[{m_decisions[entry].folder,
                                            Names(entry).NumberOf(Names(entry).Add(WantedName(entry)))}];
    }

    /// A folder, and a name in it without the extension; for a sidecar also without the extension of its file.
    using Stem = std::pair<std::uint32_t, CString>;

    /// Whether the entry shares its stem with its group alone.
    [[nodiscard]] bool HasStem(std::uint32_t entry) const
    {
        return m_groups.AreByStem() && m_list.entries[entry].kind == Kind::File;
    }

    [[nodiscard]] Stem StemOf(std::uint32_t entry, std::uint32_t folder, std::u16string_view name) const
    {
        const Model::Folder& in = m_list.folders[folder];
        CString stem = FileUtils::GetSplitFName(in.path + name);
        for (auto main = m_groups.MainFileOf(entry); main != Model::noEntry; main = m_groups.MainFileOf(main))
            stem = FileUtils::GetSplitFName(in.path + stem);
        return {folder, VyrHostPlatform::FoldName(stem, in.names.Folding())};
    }

    /// Whether no other group gets the stem of `name`; otherwise files of two groups would look like one group.
    [[nodiscard]] bool IsStemFree(std::uint32_t entry, std::u16string_view name) const
    {
        if (!HasStem(entry))
            return true;
        const auto held = m_stems.find(StemOf(entry, m_decisions[entry].folder, name));
        return held == m_stems.end() || held->second == m_groups.Of(entry);
    }

    [[nodiscard]] Reason ConflictReason(const Model::NameRecord& record) const
    {
        const bool goesToOther = record.owner < newFolder && m_decisions[record.owner].IsRename();
        return goesToOther ? Reason::TwoToOne : Reason::TargetExists;
    }

    /// The names in the new folder of `entry` after the batch.
    [[nodiscard]] Model::NameTable& Names(std::uint32_t entry) { return m_after.In(m_decisions[entry].folder); }

    Model::EntryList& m_list;
    const Groups& m_groups;
    std::vector<Decision>& m_decisions;
    NamesAfter& m_after;
    const ConflictSettings& m_settings;
    const bool m_mayNumber;
    /// Groups to decide.
    std::vector<std::uint32_t> m_pending;
    /// The members of the current group that take part.
    std::vector<std::uint32_t> m_members;
    /// The wanted names of entries that got a numbered one.
    std::unordered_map<std::uint32_t, Model::InternedName> m_wanted;
    /// The next attempts, by the folder and the index of the wanted name's record there.
    std::map<std::pair<std::uint32_t, std::size_t>, std::uint64_t> m_attempts;
    /// For groups by stem: the group that gets each stem, and the next attempts.
    std::map<Stem, std::uint32_t> m_stems;
    std::map<Stem, std::uint64_t> m_stemAttempts;
};

} // namespace

void ResolveConflicts(Model::EntryList& list, const Groups& groups, std::vector<Decision>& decisions, NamesAfter& after,
                      const ConflictSettings& settings, bool mayNumber)
{
    ConflictResolver(list, groups, decisions, after, settings, mayNumber).Run();
}

} // namespace VyrHost::Rename
