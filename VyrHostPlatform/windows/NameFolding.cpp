// Which names a folder takes for one, on Windows.
#include <VyrHostPlatform/NameFolding.h>

#include <VyrPlatform/windows/files/LongPath.h>

#include <VyrPlatform/text/WindowsCString.h>

#include <algorithm>
#include <string>
#include <windows.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

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

/// Without linguistic rules this is the table of capitals that the file systems use, one unit to one.
CString ToCapitals(const CString& name)
{
    std::wstring capitals(static_cast<std::size_t>(name.GetLength()), L'\0');
    const int length = LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, ToWide(name), name.GetLength(),
                                     capitals.data(), name.GetLength(), nullptr, nullptr, 0);
    return length == name.GetLength() ? FromWide(capitals) : name;
}

/// The normal form of composed letters, which is never longer.
CString Compose(const CString& name)
{
    std::wstring composed(static_cast<std::size_t>(name.GetLength()), L'\0');
    const int length = FoldStringW(MAP_PRECOMPOSED, ToWide(name), name.GetLength(), composed.data(), name.GetLength());
    return length > 0 ? FromWide(std::wstring_view(composed).substr(0, static_cast<std::size_t>(length))) : name;
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
    if (folding == NameFolding::None || name.IsEmpty())
        return name;
    const CString folded = folding == NameFolding::Case ? name : Compose(name);
    return folding == NameFolding::Form ? folded : ToCapitals(folded);
}

} // namespace VyrHostPlatform
