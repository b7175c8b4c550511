// Finds the folder and the name in what the user wrote.
#include <VyrHost/rename/GivenNames.h>

#include <VyrHost/text/FolderPart.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FullPath.h>

namespace VyrHost::Rename {

namespace {

using VyrLibraryUtils::FileUtils;

WantedName NameFor(const Model::Folder& now, const CString& given)
{
    WantedName wanted;
    wanted.folder = now.path;
    wanted.shownFolder = now.shown;
    wanted.name = given;
    const std::u16string_view folder = Text::FolderPart(given);
    if (folder.empty())
        return wanted;
    const CString full = VyrPlatform::GetFullPath(given);
    wanted.folder = FileUtils::GetSplitDirPath(full);
    wanted.shownFolder = folder;
    wanted.name = given.View().substr(folder.size());
    if (wanted.name.IsEmpty())
        wanted.reason = Reason::EmptyName;
    return wanted;
}

} // namespace

void GivenNames::Name(const Model::EntryList& list, std::span<const std::uint32_t> members,
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
