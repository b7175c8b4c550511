/// @file
/// New names that the user gives one by one.
#pragma once

#include <VyrHost/rename/NameSource.h>

#include <unordered_map>

namespace VyrHost::Rename {

/// Gives each entry the name that was written down for it, and its own where none was. A bare name stays in the entry's
/// folder; one with a separator is a path, from the current folder on where it is not a full one.
class GivenNames : public NameSource
{
public:
    /// `names` are by places in the list.
    explicit GivenNames(std::unordered_map<std::uint32_t, CString> names) : m_names(std::move(names)) {}

    void Name(const Model::EntryList& list, std::span<const std::uint32_t> members,
              std::vector<WantedName>& names) override;
    /// A name that the user wrote is not changed.
    [[nodiscard]] bool MayNumber() const override { return false; }

private:
    std::unordered_map<std::uint32_t, CString> m_names;
};

} // namespace VyrHost::Rename
