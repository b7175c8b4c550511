// Which names are equal in a folder, on Windows.
#include <VyrHostPlatform/NameFolding.h>

#include <VyrPlatform/windows/files/OpenEntry.h>

#include <VyrPlatform/text/WindowsCString.h>

#include <algorithm>
#include <string>

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

CString ParentOf(const CString& path)
{
    return path.Left(std::max(path.ReverseFind(u'\\'), path.ReverseFind(u'/')));
}

/// Opens the folder at `path`, or its nearest existing parent.
Handle OpenNearest(CString path) noexcept
{
    Handle folder;
    for (; !path.IsEmpty() && !folder.IsOpen(); path = ParentOf(path))
        folder = OpenEntry(LongPath(path), FILE_READ_ATTRIBUTES, Links::Follow);
    return folder;
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
    const Handle folder = OpenNearest(path);
    return folder.IsOpen() && IsCaseSensitive(folder.Get()) ? NameFolding::None : NameFolding::Case;
}

CString FoldName(const CString& name, NameFolding folding)
{
    if (folding == NameFolding::None || name.IsEmpty())
        return name;
    const CString folded = folding == NameFolding::Case ? name : Compose(name);
    return folding == NameFolding::Form ? folded : ToCapitals(folded);
}

} // namespace VyrHostPlatform
