/// @file
/// The names of the folders as they are after a batch.
#pragma once

#include <VyrHost/model/FolderSet.h>

#include <cstdint>
#include <deque>
#include <string_view>

namespace VyrHost::Rename {

/// The owner of a name that a new folder of the batch gets.
inline constexpr std::uint32_t newFolder = Model::noEntry - 1;

/// Who gets which name. A record's owner is the entry that gets the name, newFolder, or noEntry while nobody does.
class NamesAfter
{
public:
    /// @param folders  must outlive this, their listings as they are.
    explicit NamesAfter(const Model::FolderSet& folders) : m_folders(folders) {}

    /// The names of a folder.
    [[nodiscard]] Model::NameTable& In(std::uint32_t folder);

    /// Whether nobody gets the name `record` of `folder`, and no file or folder that is left alone has it.
    [[nodiscard]] bool IsFree(std::uint32_t folder, const Model::NameRecord& record) const
    {
        return record.owner == Model::noEntry && IsVacated(folder, record.name);
    }
    /// The same for any name.
    [[nodiscard]] bool IsFree(std::uint32_t folder, std::u16string_view name);

private:
    /// Whether the disk does not have the name, or the entry that has it is one of the list. (An entry of the list that
    /// keeps its name gets it.)
    [[nodiscard]] bool IsVacated(std::uint32_t folder, std::u16string_view name) const;

    const Model::FolderSet& m_folders;
    /// By folder, as many as were asked for.
    std::deque<Model::NameTable> m_names;
};

} // namespace VyrHost::Rename
