/// @file
/// The names in folders after a batch.
#pragma once

#include <VyrHost/model/FolderSet.h>

#include <cstdint>
#include <deque>
#include <string_view>

namespace VyrHost::Rename {

/// The owner of a name that a new folder gets.
inline constexpr std::uint32_t newFolder = Model::noEntry - 1;

/// The owners of names. The owner of a record is the entry that gets the name, newFolder, or noEntry for none.
class NamesAfter
{
public:
    /// @param folders  must outlive this, with unchanged listings.
    explicit NamesAfter(const Model::FolderSet& folders) : m_folders(folders) {}

    /// The names of a folder.
    [[nodiscard]] Model::NameTable& In(std::uint32_t folder);

    /// Whether the name `record` of `folder` is free: no entry gets it, and no other file or folder has it.
    [[nodiscard]] bool IsFree(std::uint32_t folder, const Model::NameRecord& record) const
    {
        return record.owner == Model::noEntry && IsVacated(folder, record.name);
    }
    /// The same for any name.
    [[nodiscard]] bool IsFree(std::uint32_t folder, std::u16string_view name);

private:
    /// Whether no entry has the name on the disk, or only one of the list. (An entry of the list that keeps its name
    /// counts as getting it.)
    [[nodiscard]] bool IsVacated(std::uint32_t folder, std::u16string_view name) const;

    const Model::FolderSet& m_folders;
    /// By folder, up to the last one used.
    std::deque<Model::NameTable> m_names;
};

} // namespace VyrHost::Rename
