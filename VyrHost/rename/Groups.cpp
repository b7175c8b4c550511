// Finds the entries that keep together.
#include <VyrHost/rename/Groups.h>

#include <VyrHostPlatform/NameFolding.h>

#include <numeric>
#include <string>
#include <unordered_map>
#include <utility>

namespace VyrHost::Rename {

using VyrPlatform::FileSystem::Kind;

Groups Groups::OfOne(const Model::EntryList& list)
{
    const auto count = static_cast<std::uint32_t>(list.entries.size());
    std::vector<std::uint32_t> groups(count);
    std::iota(groups.begin(), groups.end(), 0U);
    return {std::move(groups), count};
}

Groups Groups::ByStem(const Model::EntryList& list)
{
    std::vector<std::unordered_map<CString, std::uint32_t>> stems(list.folders.Count());
    std::vector<std::uint32_t> groups;
    std::uint32_t count = 0;
    for (const Model::Entry& entry : list.entries) {
        std::uint32_t group = count;
        if (entry.kind == Kind::File) {
            const CString stem = Model::Split(list.PathOf(entry), entry).name;
            const VyrHostPlatform::NameFolding folding = list.folders[entry.folder].names.Folding();
            group = stems[entry.folder].try_emplace(VyrHostPlatform::FoldName(stem, folding), count).first->second;
        }
        if (group == count)
            ++count;
        groups.push_back(group);
    }
    return {std::move(groups), count};
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
