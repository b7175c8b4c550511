// Lists each folder once and remembers it by number.
#include <VyrHost/model/FolderSet.h>

#include <VyrHost/model/NaturalOrder.h>
#include <VyrHost/model/Prefetch.h>
#include <VyrPlatform/files/FolderListing.h>

#include <vector>

namespace VyrHost::Model {

namespace {

struct Listed
{
    InternedName name;
    VyrPlatform::FileSystem::Kind kind;
    bool isLink;
};

} // namespace

std::uint32_t FolderSet::Open(const CString& path, const CString& shown)
{
    if (const auto known = m_byPath.find(path); known != m_byPath.end())
        return known->second;
    const VyrPlatform::FileState state = VyrPlatform::LookAtFile(path);
    const std::uint32_t number = Find(state);
    m_byPath.emplace(path, number);
    if (number == Count()) {
        Folder& folder = m_folders.emplace_back();
        folder.path = path;
        folder.shown = shown;
        if (state.kind == VyrPlatform::FileSystem::Kind::Folder)
            folder.device = state.identity.device;
        List(folder);
    }
    return number;
}

/// The number that the folder in `state` has under another path, else the next number.
std::uint32_t FolderSet::Find(const VyrPlatform::FileState& state)
{
    if (state.kind != VyrPlatform::FileSystem::Kind::Folder)
        return Count();
    return m_byIdentity.try_emplace(state.identity, Count()).first->second;
}

void FolderSet::List(Folder& folder)
{
    NamePool texts;
    std::vector<Listed> listed;
    VyrPlatform::FolderListing listing(folder.path);
    while (listing.Next())
        listed.push_back({texts.Intern(listing.Name()), listing.Kind(), listing.IsLink()});
    folder.error = listing.Error();
    folder.exists = folder.error == 0;
    folder.names.SetFolding(VyrHostPlatform::GetNameFolding(folder.path));
    folder.names.Reserve(listed.size());
    // Whoever goes through them in this order finds the texts side by side.
    SortNaturally(listed);
    for (std::size_t index = 0; index < listed.size(); ++index) {
        if (index + PrefetchDistance < listed.size())
            listed[index + PrefetchDistance].name.Expect();
        Listed& one = listed[index];
        one.name = m_texts->Intern(one.name);
    }
    for (std::size_t index = 0; index < listed.size(); ++index) {
        if (index + PrefetchDistance < listed.size())
            folder.names.Expect(listed[index + PrefetchDistance].name);
        NameRecord& record = folder.names.Add(listed[index].name);
        record.kind = listed[index].kind;
        record.isLink = listed[index].isLink;
    }
}

} // namespace VyrHost::Model
