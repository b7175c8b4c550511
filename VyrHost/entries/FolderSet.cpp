// Lists each folder once and remembers it by number.
#include <VyrHost/entries/FolderSet.h>

#include <VyrPlatform/FolderListing.h>

namespace VyrHost {

std::uint32_t FolderSet::Open(const CString& path, const CString& shown)
{
    const auto [place, isNew] = m_numbers.try_emplace(path, Count());
    if (isNew) {
        Folder& folder = m_folders.emplace_back();
        folder.path = path;
        folder.shown = shown;
        List(folder);
    }
    return place->second;
}

void FolderSet::List(Folder& folder)
{
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
