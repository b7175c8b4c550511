// Keeps a table of names for each folder, beside the folder's listing.
#include <VyrHost/rename/NamesAfter.h>

namespace VyrHost::Rename {

Model::NameTable& NamesAfter::In(std::uint32_t folder)
{
    if (folder >= m_names.size())
        m_names.resize(folder + std::size_t{1});
    Model::NameTable& names = m_names[folder];
    if (names.Records().empty())
        names.SetFolding(m_folders[folder].names.Folding());
    return names;
}

bool NamesAfter::IsFree(std::uint32_t folder, std::u16string_view name)
{
    const Model::NameRecord* const record = In(folder).Find(name);
    return record ? IsFree(folder, *record) : IsVacated(folder, name);
}

bool NamesAfter::IsVacated(std::uint32_t folder, std::u16string_view name) const
{
    const Model::NameRecord* const listed = m_folders[folder].names.Find(name);
    return !listed || listed->owner != Model::noEntry;
}

} // namespace VyrHost::Rename
