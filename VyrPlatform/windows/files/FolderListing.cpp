#include <VyrPlatform/files/FolderListing.h>

#include "FileStatus.h"
#include "LongPath.h"

#include <VyrPlatform/text/WindowsCString.h>
#include <VyrPlatform/windows/Handle.h>

#include <cwchar>

namespace VyrPlatform {

using FileSystem::Kind;

struct FolderListing::State
{
    CString folder;
    SearchHandle search;
    WIN32_FIND_DATAW found{};
    /// `found` came with the opening, and Next has not returned it yet.
    bool isPending = false;
    Dots dots = Dots::LeftOut;
    CString name;
    FileSystem::Kind kind = FileSystem::Kind::Missing;
    bool isLink = false;
    std::uint32_t error = 0;
};

namespace {

bool IsDots(const wchar_t* name) noexcept
{
    return std::wcscmp(name, L".") == 0 || std::wcscmp(name, L"..") == 0;
}

} // namespace

FolderListing::FolderListing(const CString& path, Dots dots) : m_state(std::make_unique<State>())
{
    m_state->dots = dots;
    m_state->folder = path;
    const LongPath pattern(path, FileSystem::EndsWithSeparator(path) ? u"*" : uR"(\*)");
    m_state->search = SearchHandle(FindFirstFileExW(pattern.Get(), FindExInfoBasic, &m_state->found,
                                                    FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH));
    m_state->isPending = m_state->search.IsOpen();
    if (m_state->isPending)
        return;
    m_state->error = GetLastError();
    // The root folder of an empty drive has no entries at all, not even dots.
    if (m_state->error == ERROR_FILE_NOT_FOUND && FileSystem::IsFolder(path))
        m_state->error = ERROR_SUCCESS;
}

FolderListing::~FolderListing() = default;

bool FolderListing::Next()
{
    if (!m_state->search.IsOpen())
        return false;
    do {
        if (!m_state->isPending && !FindNextFileW(m_state->search.Get(), &m_state->found)) {
            const DWORD error = GetLastError();
            m_state->error = error == ERROR_NO_MORE_FILES ? 0 : error;
            return false;
        }
        m_state->isPending = false;
    } while (m_state->dots == Dots::LeftOut && IsDots(m_state->found.cFileName));
    m_state->name = FromWide(m_state->found.cFileName);
    m_state->isLink = VyrPlatform::IsLink(m_state->found);
    if (m_state->isLink)
        m_state->kind = FileSystem::Query(FileSystem::JoinPath(m_state->folder, m_state->name)).kind;
    else
        m_state->kind = m_state->found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY ? Kind::Folder : Kind::File;
    return true;
}

const CString& FolderListing::Name() const noexcept
{
    return m_state->name;
}

Kind FolderListing::Kind() const noexcept
{
    return m_state->kind;
}

bool FolderListing::IsLink() const noexcept
{
    return m_state->isLink;
}

std::uint32_t FolderListing::Error() const noexcept
{
    return m_state->error;
}

} // namespace VyrPlatform
