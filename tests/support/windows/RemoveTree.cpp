// Removes folders on Windows. The standard library's own call stumbles over streams, which Wine lists as files.
#include <tests/support/RemoveTree.h>

#include <VyrPlatform/text/WindowsCString.h>

#include <windows.h>

namespace VyrTests {

namespace {

using VyrPlatform::ToWide;

void Empty(const CString& folder);

void Remove(const CString& path, DWORD attributes)
{
    SetFileAttributesW(ToWide(path), FILE_ATTRIBUTE_NORMAL);
    if (!(attributes & FILE_ATTRIBUTE_DIRECTORY)) {
        DeleteFileW(ToWide(path));
        return;
    }
    if (!(attributes & FILE_ATTRIBUTE_REPARSE_POINT))
        Empty(path);
    RemoveDirectoryW(ToWide(path));
}

void Empty(const CString& folder)
{
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(ToWide(folder + uR"(\*)"), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        const CString name = VyrPlatform::FromWide(found.cFileName);
        if (name != u"." && name != u"..")
            Remove(CString::Join({folder, uR"(\)", name}), found.dwFileAttributes);
    } while (FindNextFileW(search, &found));
    FindClose(search);
}

} // namespace

std::string RemoveTree(const CString& path)
{
    const CString longPath = uR"(\\?\)" + path;
    Empty(longPath);
    return RemoveDirectoryW(ToWide(longPath)) ? std::string() : "error " + std::to_string(GetLastError());
}

} // namespace VyrTests
