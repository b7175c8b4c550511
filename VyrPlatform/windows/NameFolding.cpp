// Which names a folder takes for one, on Windows.
#include <VyrPlatform/NameFolding.h>

#include "LongPath.h"

#include <VyrPlatform/WindowsCString.h>

#include <algorithm>
#include <string>
#include <windows.h>

namespace VyrPlatform {

namespace {

/// What GetFileInformationByHandleEx answers for FileCaseSensitiveInfo; older headers lack both.
struct CaseSensitiveInformation
{
    ULONG flags;
};
constexpr auto fileCaseSensitiveInfo = static_cast<FILE_INFO_BY_HANDLE_CLASS>(23);
constexpr ULONG caseSensitiveFolder = 1;

HANDLE OpenFolderAt(const CString& path) noexcept
{
    return CreateFileW(LongPath(path).Get(), FILE_READ_ATTRIBUTES,
                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                       FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

CString ParentOf(const CString& path)
{
    return path.Left(std::max(path.ReverseFind(u'\\'), path.ReverseFind(u'/')));
}

/// Opens the folder at `path`, or the nearest one above it that is there.
HANDLE OpenNearest(CString path) noexcept
{
    for (; !path.IsEmpty(); path = ParentOf(path)) {
        const HANDLE folder = OpenFolderAt(path);
        if (folder != INVALID_HANDLE_VALUE)
            return folder;
    }
    return INVALID_HANDLE_VALUE;
}

bool IsCaseSensitive(HANDLE folder) noexcept
{
    CaseSensitiveInformation information{};
    return GetFileInformationByHandleEx(folder, fileCaseSensitiveInfo, &information, sizeof(information)) &&
           (information.flags & caseSensitiveFolder);
}

} // namespace

NameFolding GetNameFolding(const CString& path)
{
    const HANDLE folder = OpenNearest(path);
    if (folder == INVALID_HANDLE_VALUE)
        return NameFolding::Case;
    const bool isCaseSensitive = IsCaseSensitive(folder);
    CloseHandle(folder);
    return isCaseSensitive ? NameFolding::None : NameFolding::Case;
}

CString FoldName(const CString& name, NameFolding folding)
{
    // No file system of this system overlooks the normal form.
    const bool foldsCase = folding == NameFolding::Case || folding == NameFolding::CaseAndForm;
    if (!foldsCase || name.IsEmpty())
        return name;
    // Without linguistic rules this is the table of capitals that the file systems use, one unit to one.
    std::wstring folded(static_cast<std::size_t>(name.GetLength()), L'\0');
    const int length = LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, ToWide(name), name.GetLength(),
                                     folded.data(), name.GetLength(), nullptr, nullptr, 0);
    return length == name.GetLength() ? FromWide(folded) : name;
}

} // namespace VyrPlatform
