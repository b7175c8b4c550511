// Symbolic links on Windows, which not every user may make.
#include <tests/support/Links.h>

#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <windows.h>

namespace VyrTests {

std::string MakeLink(const CString& target, const CString& link)
{
    const DWORD kind = VyrPlatform::FileSystem::IsFolder(target) ? SYMBOLIC_LINK_FLAG_DIRECTORY : 0;
    if (!CreateSymbolicLinkW(VyrPlatform::ToWide(link), VyrPlatform::ToWide(target), kind))
        return "this user may not make symbolic links, error " + std::to_string(GetLastError());
    if (GetFileAttributesW(VyrPlatform::ToWide(link)) == INVALID_FILE_ATTRIBUTES)
        return "Wine answers that it made the symbolic link, and makes none";
    return {};
}

} // namespace VyrTests
