// Names groups of entries by rules, or as given by the user.
#include <VyrHost/rename/NameSources.h>

#include <VyrHost/model/FolderSet.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FullPath.h>

#include <algorithm>
#include <numeric>
#include <optional>

namespace VyrHost::Rename {

using VyrPlatform::FileSystem::Kind;

bool RuleNames::MayNumber() const
{
    // Entries of several folders move into one.
    return m_into || std::any_of(m_rules.begin(), m_rules.end(), [](const auto& rule) { return rule->MayNumber(); });
}

void RuleNames::Name(const Model::EntryList& list, const Groups& groups, std::span<const std::uint32_t> members,
                     std::vector<WantedName>& names)
{
    const int index = TakeIndex(list.entries[members.front()].folder);
    ++m_group;
    names.assign(members.size(), {});
    if (members.size() == 1)
        NameOne(list, list.entries[members.front()], index, names.front());
    else
        NameTogether(list, groups, members, index, names);
}

void RuleNames::NameOne(const Model::EntryList& list, const Model::Entry& entry, int index, WantedName& name)
{
    name.reason = Run(list, entry, index, entry);
    name.cause = m_subject.cause;
    if (name.reason == Reason::None)
        name = Wanted(list, entry);
}

void RuleNames::NameTogether(const Model::EntryList& list, const Groups& groups, std::span<const std::uint32_t> members,
                             int index, std::vector<WantedName>& names)
{
    const Model::Entry* leader = nullptr;
    Subject made;
    std::optional<std::size_t> rankNotRead;
    for (std::size_t place = 0; place < members.size() && (!leader || made.dateRank > 0); ++place) {
        const Model::Entry& entry = list.entries[members[place]];
        // A sidecar has no stem of its own.
        if (groups.MainFileOf(members[place]) != Model::noEntry)
            continue;
        names[place].reason = Run(list, entry, index, entry);
        names[place].cause = m_subject.cause;
        if (names[place].reason == Reason::PictureNotRead)
            rankNotRead = std::min(rankNotRead.value_or(m_subject.dateRank), m_subject.dateRank);
        if (names[place].reason == Reason::None && (!leader || m_subject.dateRank < made.dateRank)) {
            leader = &entry;
            made = m_subject;
        }
    }
    // The picture that cannot be read might have a better date.
    const bool isUncertain = leader && rankNotRead && *rankNotRead < made.dateRank;
    if (leader && !isUncertain) {
        FollowLeader(list, groups, members, index, *leader, made, names);
        return;
    }
    for (WantedName& name : names)
        if (name.reason == Reason::None || (isUncertain && name.reason != Reason::PictureNotRead))
            name.reason = Reason::CompanionRefused;
}

void RuleNames::FollowLeader(const Model::EntryList& list, const Groups& groups, std::span<const std::uint32_t> members,
                             int index, const Model::Entry& leader, const Subject& made, std::vector<WantedName>& names)
{
    // A file has a shorter name than its sidecars, so it comes before them.
    std::vector<std::size_t> places(members.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::ranges::stable_sort(places, {},
                             [&](std::size_t place) { return list.entries[members[place]].name.View().size(); });
    for (const std::size_t place : places) {
        const Model::Entry& entry = list.entries[members[place]];
        if (&entry != &leader) {
            // Run for its own extension.
            (void)Run(list, entry, index, leader);
            m_subject.folder = made.folder;
            m_subject.name = made.name;
        } else {
            m_subject = made;
        }
        if (const std::uint32_t main = groups.MainFileOf(members[place]); main != Model::noEntry)
            m_subject.name =
                names[static_cast<std::size_t>(std::ranges::lower_bound(members, main) - members.begin())].name;
        names[place] = Wanted(list, entry);
    }
}

int RuleNames::TakeIndex(std::uint32_t folder)
{
    const std::size_t counter = m_counting == Counting::EachFolder ? folder : 0;
    if (counter >= m_next.size())
        m_next.resize(counter + 1);
    return m_next[counter]++;
}

/// @param dated  the entry whose dates and picture data are used.
Reason RuleNames::Run(const Model::EntryList& list, const Model::Entry& entry, int index, const Model::Entry& dated)
{
    m_subject.folder = m_into ? m_into->path : list.folders[entry.folder].path;
    m_subject.path = list.PathOf(entry);
    Model::SplitName split = Model::Split(m_subject.path, entry);
    m_subject.name.Swap(split.name);
    m_subject.extension.Swap(split.extension);
    if (&dated != &entry)
        m_subject.path = list.PathOf(dated);
    m_workingFolder.Enter(list.folders[dated.folder].path);
    m_subject.isFolder = entry.kind == Kind::Folder;
    m_subject.index = index;
    m_subject.group = m_group;
    m_subject.isFollower = &dated != &entry;
    m_subject.groups.Clear();
    m_subject.cause.Empty();
    m_subject.dateRank = 0;
    m_subject.datesTaken = {};
    for (const auto& rule : m_rules)
        if (const Reason fault = rule->Apply(m_subject); fault != Reason::None)
            return fault;
    return Reason::None;
}

WantedName RuleNames::Wanted(const Model::EntryList& list, const Model::Entry& entry) const
{
    WantedName wanted;
    if (m_subject.name.IsEmpty()) {
        wanted.reason = Reason::EmptyName;
        return wanted;
    }
    const Model::Folder& now = list.folders[entry.folder];
    wanted.folder = m_subject.folder;
    const CString& base = m_into ? m_into->path : now.path;
    const CString& shownBase = m_into ? m_into->shown : now.shown;
    wanted.shownFolder = shownBase + m_subject.folder.Mid(base.GetLength());
    wanted.name = m_subject.name + m_subject.extension;
    wanted.datesTaken = m_subject.datesTaken;
    return wanted;
}

namespace {

using VyrLibraryUtils::FileUtils;

WantedName NameFor(const Model::Folder& now, const CString& given)
{
    WantedName wanted;
    wanted.folder = now.path;
    wanted.shownFolder = now.shown;
    wanted.name = given;
    const std::u16string_view folder = Model::FolderPart(given);
    if (folder.empty())
        return wanted;
    const CString full = VyrPlatform::GetFullPath(given);
    wanted.folder = FileUtils::GetSplitDirPath(full);
    wanted.shownFolder = folder;
    wanted.name = Model::NamePart(given);
    if (wanted.name.IsEmpty())
        wanted.reason = Reason::EmptyName;
    return wanted;
}

} // namespace

void GivenNames::Name(const Model::EntryList& list, const Groups& /*groups*/, std::span<const std::uint32_t> members,
                      std::vector<WantedName>& names)
{
    names.clear();
    for (const std::uint32_t entry : members) {
        const auto given = m_names.find(entry);
        names.push_back(NameFor(list.folders[list.entries[entry].folder],
                                given == m_names.end() ? CString(list.entries[entry].name.View()) : given->second));
    }
}

} // namespace VyrHost::Rename
