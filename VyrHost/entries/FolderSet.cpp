// Lists each folder once and remembers it by number.
#include <VyrHost/entries/FolderSet.h>

#include <VyrHost/entries/NaturalOrder.h>
#include <VyrPlatform/FolderListing.h>

#include <numeric>
#include <vector>

namespace VyrHost {

namespace {

std::vector<std::uint32_t> OrderOf(const std::deque<NameRecord>& records)
{
    std::vector<std::uint32_t> order(records.size());
    std::iota(order.begin(), order.end(), 0);
    SortNaturally(order, [&records](std::uint32_t index) { return records[index].name; });
    return order;
}

} // namespace

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
    NameStore texts;
    std::deque<NameRecord> listed;
    VyrPlatform::FolderListing listing(folder.path);
    while (listing.Next())
        listed.push_back({.name = texts.Keep(listing.Name()), .kind = listing.Kind(), .isLink = listing.IsLink()});
    folder.error = listing.Error();
    folder.exists = folder.error == 0;
    folder.names.SetFolding(VyrPlatform::GetNameFolding(folder.path));
    folder.names.Reserve(listed.size());
    // Whoever goes through them in this order finds the texts side by side.
    for (const std::uint32_t index : OrderOf(listed)) {
        NameRecord& record = folder.names.Add(m_texts->Keep(listed[index].name));
        record.kind = listed[index].kind;
        record.isLink = listed[index].isLink;
    }
}

} // namespace VyrHost
