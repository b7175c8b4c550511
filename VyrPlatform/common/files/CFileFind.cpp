// The listing is always one entry ahead, to tell whether another one follows.
#include <VyrPlatform/files/CFileFind.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FolderListing.h>

#include <string_view>

using VyrPlatform::FolderListing;
namespace FileSystem = VyrPlatform::FileSystem;

namespace {

/// The number of code units before the last part of `pattern`.
std::size_t FindLastPart(std::u16string_view pattern) noexcept
{
    std::size_t start = pattern.size();
    while (start > 0 && !FileSystem::IsSeparator(pattern[start - 1]))
        --start;
    return start;
}

/// Whether `folder`, which ends with a separator, is a root folder: without the separator it would be another folder.
bool IsRootFolder(std::u16string_view folder) noexcept
{
    return folder.size() == 1 || folder[folder.size() - 2] == u':';
}

CString WithoutSeparatorAtEnd(std::u16string_view folder)
{
    while (FileSystem::EndsWithSeparator(folder) && !IsRootFolder(folder))
        folder.remove_suffix(1);
    return folder;
}

} // namespace

struct CFileFind::Search
{
    explicit Search(const CString& folder)
        : root(folder), listing(folder.IsEmpty() ? CString(u".") : folder, FolderListing::Dots::Given),
          hasNext(listing.Next())
    {}

    CString root;
    FolderListing listing;
    /// Whether the listing is at an entry that FindNextFile has not reached yet.
    bool hasNext;
    CString name;
    bool isFolder = false;
};

CFileFind::CFileFind() = default;

CFileFind::~CFileFind() = default;

bool CFileFind::FindFile(const CString& pattern)
{
    Close();
    const std::u16string_view text = pattern;
    const std::size_t lastPart = FindLastPart(text);
    const std::u16string_view name = text.substr(lastPart);
    if (name != u"*.*" && name != u"*")
        return false;
    m_search = std::make_unique<Search>(WithoutSeparatorAtEnd(text.substr(0, lastPart)));
    return m_search->hasNext;
}

bool CFileFind::FindNextFile()
{
    if (!m_search || !m_search->hasNext)
        return false;
    const FolderListing& listing = m_search->listing;
    m_search->name = listing.Name();
    m_search->isFolder = listing.Kind() == FileSystem::Kind::Folder && !listing.IsLink();
    m_search->hasNext = m_search->listing.Next();
    return m_search->hasNext;
}

void CFileFind::Close()
{
    m_search.reset();
}

CString CFileFind::GetFileName() const
{
    return m_search ? m_search->name : CString();
}

CString CFileFind::GetRoot() const
{
    return m_search ? m_search->root : CString();
}

CString CFileFind::GetFilePath() const
{
    return FileSystem::JoinPath(GetRoot(), GetFileName());
}

bool CFileFind::IsDots() const
{
    const CString name = GetFileName();
    return name == u"." || name == u"..";
}

bool CFileFind::IsDirectory() const
{
    return m_search && m_search->isFolder;
}
