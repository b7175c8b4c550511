/// @file
/// Groups of entries that are renamed together: the raw file, the picture and the sidecar of one shot.
#pragma once

#include <VyrHost/model/EntryList.h>

#include <cstdint>
#include <span>
#include <vector>

namespace VyrHost::Rename {

/// Divides a list into groups. Groups are in the order of their first entries, entries of a group in the order of the
/// list.
class Groups
{
public:
    /// Each entry is a group of its own.
    [[nodiscard]] static Groups OfOne(const Model::EntryList& list);
    /// Files of one folder whose names differ only in their extensions are a group, together with their sidecars
    /// (MainFileOf): `X.CR2`, `X.xmp`, `X.JPG` and `X.JPG.xmp`.
    [[nodiscard]] static Groups ByStem(const Model::EntryList& list);
    /// Whether the groups are those of ByStem, which must all get different stems.
    [[nodiscard]] bool AreByStem() const { return m_areByStem; }

    [[nodiscard]] std::size_t Count() const { return m_begins.empty() ? m_members.size() : m_begins.size() - 1; }
    [[nodiscard]] std::span<const std::uint32_t> Members(std::size_t group) const
    {
        if (m_begins.empty())
            return std::span(m_members).subspan(group, 1);
        return std::span(m_members).subspan(m_begins[group], m_begins[group + 1] - m_begins[group]);
    }
    /// The group of an entry.
    [[nodiscard]] std::uint32_t Of(std::uint32_t entry) const { return m_groups.empty() ? entry : m_groups[entry]; }
    /// The main file of the sidecar `entry`: the file with its name without the last extension, such as `X.JPG` for
    /// `X.JPG.xmp`. noEntry for a name with fewer than two extensions, if the list has no such file, and if the groups
    /// are not those of ByStem.
    [[nodiscard]] std::uint32_t MainFileOf(std::uint32_t entry) const
    {
        return m_areByStem ? m_mainFiles[entry] : Model::noEntry;
    }

private:
    Groups() = default;
    /// @param groups the group of each entry, numbered in the order of first entries.
    Groups(std::vector<std::uint32_t> groups, std::uint32_t count);

    /// The group of each entry; empty if each is a group of its own.
    std::vector<std::uint32_t> m_groups;
    std::vector<std::uint32_t> m_members;
    /// The index of the first member of each group, then the end; empty if each entry is a group of its own.
    std::vector<std::uint32_t> m_begins;
    bool m_areByStem = false;
    /// The main file of each entry, if the groups are those of ByStem.
    std::vector<std::uint32_t> m_mainFiles;
};

} // namespace VyrHost::Rename
