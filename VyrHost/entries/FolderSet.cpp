// Lists each folder once and remembers it by number.
#include <VyrHost/entries/FolderSet.h>

#include <VyrPlatform/FolderListing.h>

namespace VyrHost {

std::uint32_t FolderSet::Open(const CString& path, const CString& shown)
{
    if (const auto known = m_byPath.find(path); known != m_byPath.end())
        return known->second;
    const std::uint32_t number = Find(path);
    m_byPath.emplace(path, number);
    if (number == Count()) {
        Folder& folder = m_folders.emplace_back();
        folder.path = path;
        folder.shown = shown;
        List(folder);
    }
    return number;
}

/// The number that the folder has under another path, else the next number.
std::uint32_t FolderSet::Find(const CString& path)
{
    const VyrPlatform::FileState state = VyrPlatform::LookAtFile(path);
    if (state.kind != VyrPlatform::FileSystem::Kind::Folder)
        return Count();
    return m_byIdentity.try_emplace(state.identity, Count()).first->second;
}

void FolderSet::List(Folder& folder)
{
    folder.names.SetFolding(VyrPlatform::GetNameFolding(folder.path));
    VyrPlatform::FolderListing listing(folder.path);
    while (listing.Next()) {
        NameRecord& record = folder.names.Add(m_texts.Keep(listing.Name()));
        record.kind = listing.Kind();
        record.isLink = listing.IsLink();
    }
    folder.error = listing.Error();
    folder.exists = folder.error == 0;
}

} // namespace VyrHost
