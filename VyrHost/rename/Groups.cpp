// Groups entries by their stems.
#include <VyrHost/rename/Groups.h>

#include <VyrHostPlatform/NameFolding.h>
#include <VyrLibraryUtils/FileUtils.h>

#include <numeric>
#include <string>
#include <unordered_map>
#include <utility>

namespace VyrHost::Rename {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FileSystem::Kind;

namespace {

std::uint32_t FindMainFile(const Model::EntryList& list, const Model::Entry& entry)
{
    if (entry.kind != Kind::File)
        return Model::noEntry;
    const Model::Folder& folder = list.folders[entry.folder];
    const CString mainName = Model::Split(list.PathOf(entry), entry).name;
    if (mainName == entry.name || FileUtils::GetSplitExtension(folder.path + mainName, 1).IsEmpty())
        return Model::noEntry;
    const Model::NameRecord* const record = folder.names.Find(mainName);
    const bool isListed = record && record->owner != Model::noEntry;
    return isListed && list.entries[record->owner].kind == Kind::File ? record->owner : Model::noEntry;
}

/// The stem of `entry`, or of its main file if it is a sidecar.
CString StemOf(const Model::EntryList& list, const std::vector<std::uint32_t>& mainFiles, std::uint32_t entry)
{
    // Ends, since each step removes an extension.
    while (mainFiles[entry] != Model::noEntry)
        entry = mainFiles[entry];
    return Model::Split(list.PathOf(list.entries[entry]), list.entries[entry]).name;
}

} // namespace

Groups Groups::OfOne(const Model::EntryList& list)
{
    std::vector<std::uint32_t> members(list.entries.size());
    std::iota(members.begin(), members.end(), 0U);
    Groups ofOne;
    ofOne.m_members = std::move(members);
    return ofOne;
}

Groups Groups::ByStem(const Model::EntryList& list)
{
    std::vector<std::uint32_t> mainFiles;
    mainFiles.reserve(list.entries.size());
    for (const Model::Entry& entry : list.entries)
        mainFiles.push_back(FindMainFile(list, entry));

    std::vector<std::unordered_map<CString, std::uint32_t>> stems(list.folders.Count());
    std::vector<std::uint32_t> groups;
    std::uint32_t count = 0;
    for (std::uint32_t index = 0; index < list.entries.size(); ++index) {
        const Model::Entry& entry = list.entries[index];
        std::uint32_t group = count;
        if (entry.kind == Kind::File) {
            const VyrHostPlatform::NameFolding folding = list.folders[entry.folder].names.Folding();
            const CString stem = VyrHostPlatform::FoldName(StemOf(list, mainFiles, index), folding);
            group = stems[entry.folder].try_emplace(stem, count).first->second;
        }
        if (group == count)
            ++count;
        groups.push_back(group);
    }
    Groups byStem(std::move(groups), count);
    byStem.m_areByStem = true;
    byStem.m_mainFiles = std::move(mainFiles);
    return byStem;
}

Groups::Groups(std::vector<std::uint32_t> groups, std::uint32_t count)
    : m_groups(std::move(groups)), m_members(m_groups.size()), m_begins(count + std::size_t{1})
{
    for (const std::uint32_t group : m_groups)
        ++m_begins[group + std::size_t{1}];
    std::partial_sum(m_begins.begin(), m_begins.end(), m_begins.begin());
    std::vector<std::uint32_t> next(m_begins.begin(), m_begins.end() - 1);
    for (std::uint32_t entry = 0; entry < m_groups.size(); ++entry)
        m_members[next[m_groups[entry]]++] = entry;
}

} // namespace VyrHost::Rename
