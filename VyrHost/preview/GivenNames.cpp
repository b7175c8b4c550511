// Finds the folder and the name in what the user wrote.
#include <VyrHost/preview/GivenNames.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/FileSystem.h>
#include <VyrPlatform/FullPath.h>

#include <algorithm>

namespace VyrHost {

namespace {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FileSystem::IsSeparator;

WantedName NameFor(const Folder& now, const CString& given)
{
    WantedName wanted;
    wanted.folder = now.path;
    wanted.shownFolder = now.shown;
    wanted.name = given;
    const std::u16string_view text = given;
    const auto behind = std::find_if(text.rbegin(), text.rend(), IsSeparator);
    if (behind == text.rend())
        return wanted;
    const auto length = static_cast<int>(text.rend() - behind);
    const CString full = VyrPlatform::GetFullPath(given);
    wanted.folder = FileUtils::GetSplitDirPath(full);
    wanted.shownFolder = given.Left(length);
    wanted.name = given.Mid(length);
    if (wanted.name.IsEmpty())
        wanted.reason = Reason::EmptyName;
    return wanted;
}

} // namespace

void GivenNames::Name(const EntryList& list, std::span<const std::uint32_t> members, std::vector<WantedName>& names)
{
    names.clear();
    for (const std::uint32_t entry : members) {
        const auto given = m_names.find(entry);
        names.push_back(NameFor(list.folders[list.entries[entry].folder],
                                given == m_names.end() ? CString(list.entries[entry].name) : given->second));
    }
}

} // namespace VyrHost
