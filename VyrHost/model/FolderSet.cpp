// Lists each folder once and assigns a number to it.
#include <VyrHost/model/FolderSet.h>

#include <VyrHost/model/NaturalOrder.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FolderListing.h>

#include <vector>

namespace VyrHost::Model {

std::u16string_view FolderPart(std::u16string_view path)
{
    // Queried once, not for each character: a call into another library costs more than the comparison.
    static const std::u16string_view separators = VyrPlatform::FileSystem::IsSeparator(u'\\') ? u"\\/" : u"/";
    const std::size_t last = path.find_last_of(separators);
    return path.substr(0, last == std::u16string_view::npos ? 0 : last + 1);
}

std::u16string_view NamePart(std::u16string_view path)
{
    return path.substr(FolderPart(path).size());
}

std::u16string_view ParentName(std::u16string_view path, int level)
{
    for (std::u16string_view folder = FolderPart(path); !folder.empty(); --level) {
        folder.remove_suffix(1);
        const std::u16string_view above = FolderPart(folder);
        if (level <= 1 || above.empty())
            return above.empty() ? above : folder.substr(above.size());
        folder = above;
    }
    return {};
}

std::uint32_t FolderSet::Open(const CString& path, const CString& shown)
{
    if (const auto known = m_byPath.find(path); known != m_byPath.end() && m_folders[known->second].wasOpened)
        return known->second;
    const VyrPlatform::FileState state = VyrPlatform::LookAtFile(path);
    const bool isFolder = state.kind == VyrPlatform::FileSystem::Kind::Folder;
    if (const auto known = m_byIdentity.find(state.identity); isFolder && known != m_byIdentity.end())
        return m_byPath[path] = known->second;
    const std::uint32_t number = NumberOf(path);
    Folder& folder = m_folders[number];
    folder.shown = shown;
    folder.wasOpened = true;
    if (isFolder) {
        folder.device = state.identity.device;
        m_byIdentity.emplace(state.identity, number);
    }
    List(folder);
    return number;
}

std::optional<std::uint32_t> FolderSet::FindOpened(const CString& path) const
{
    const auto known = m_byPath.find(path);
    return known != m_byPath.end() && m_folders[known->second].wasOpened ? std::optional(known->second) : std::nullopt;
}

/// The number of the folder at `path`; its parents have lower numbers.
std::uint32_t FolderSet::NumberOf(const CString& path)
{
    const std::u16string_view text = path;
    const auto root = static_cast<std::size_t>(VyrLibraryUtils::FileUtils::GetSplitPath(path, 1).GetLength());
    // The lengths of the paths of folders that are not known yet, the innermost first.
    std::vector<std::size_t> ends;
    std::size_t end = text.size();
    auto known = m_byPath.find(path);
    while (known == m_byPath.end() && end > root) {
        ends.push_back(end);
        end = FolderPart(text.substr(0, end - 1)).size();
        known = m_byPath.find(text.substr(0, end));
    }
    if (known == m_byPath.end())
        known = Add(text.substr(0, end), noFolder, text.substr(0, end));
    for (; !ends.empty(); ends.pop_back()) {
        known = Add(text.substr(0, ends.back()), known->second, text.substr(end, ends.back() - end - 1));
        end = ends.back();
    }
    return known->second;
}

FolderSet::Numbers::iterator FolderSet::Add(std::u16string_view path, std::uint32_t parent, std::u16string_view name)
{
    Folder& folder = m_folders.emplace_back();
    folder.path = path;
    folder.parent = parent;
    folder.name = Intern(name);
    return m_byPath.emplace(folder.path, Count() - 1).first;
}

void FolderSet::ForgetIndexes()
{
    for (Folder& folder : m_folders)
        folder.names.ForgetIndex();
}

void FolderSet::List(Folder& folder)
{
    NamePool texts;
    std::vector<ListedName> listed;
    VyrPlatform::FolderListing listing(folder.path);
    while (listing.Next())
        listed.push_back({texts.Intern(listing.Name()), listing.Kind(), listing.IsLink()});
    folder.error = listing.Error();
    folder.exists = folder.error == 0;
    if (folder.exists)
        folder.names.SetFolding(VyrHostPlatform::GetNameFolding(folder.path));
    folder.names.Reserve(listed.size());
    // Sorted first, so that the texts are in this order in memory.
    SortNaturally(listed);
    for (ListedName& one : listed)
        one.name = m_texts->Intern(one.name);
    folder.names.Add(listed);
}

} // namespace VyrHost::Model
