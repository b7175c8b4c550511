// Lifts the limit of 260 code units from paths.
#include "LongPath.h"

#include <string>
#include <windows.h>

namespace VyrPlatform {

namespace {

/// The limit for folders is lower than for files: there must be room for a short file name.
constexpr int longestPlainPath = MAX_PATH - 12 - 1;

bool IsSeparator(char16_t unit) noexcept
{
    return unit == u'\\' || unit == u'/';
}

bool HasSystemPrefix(std::u16string_view path) noexcept
{
    return path.starts_with(uR"(\\?\)") || path.starts_with(uR"(\\.\)");
}

/// Whether the path does not depend on the current folder or drive.
bool IsFull(std::u16string_view path) noexcept
{
    if (path.size() >= 3 && path[1] == u':')
        return IsSeparator(path[2]);
    return path.size() >= 2 && IsSeparator(path[0]) && IsSeparator(path[1]);
}

} // namespace

CString MakeFullPath(const CString& path)
{
    const DWORD capacity = GetFullPathNameW(ToWide(path), 0, nullptr, nullptr);
    std::wstring full(capacity, L'\0');
    full.resize(GetFullPathNameW(ToWide(path), capacity, full.data(), nullptr));
    return FromWide(full);
}

CString AddLongPathPrefix(const CString& fullPath)
{
    if (HasSystemPrefix(fullPath))
        return fullPath;
    if (fullPath.View().starts_with(uR"(\\)"))
        return CString::Join({uR"(\\?\UNC\)", fullPath.View().substr(2)});
    return CString::Join({uR"(\\?\)", fullPath.View()});
}

CString ToSystemPath(const CString& path, std::u16string_view suffix)
{
    if (path.IsEmpty() || path.Find(std::u16string_view(u"\0", 1)) >= 0)
        return {};
    // A suffix with a colon must not follow a relative path: "a:stream" would name a drive.
    const CString full = IsFull(path) ? path : MakeFullPath(path);
    const bool isPrefixed = HasSystemPrefix(full);
    // With a prefix, the name of a device becomes a path that not all functions of the system recognise.
    CString whole = (isPrefixed ? path : full) + suffix;
    if (isPrefixed || whole.GetLength() <= longestPlainPath)
        return whole;
    // The prefix turns off all parsing of the path, so it must be normalised before.
    return AddLongPathPrefix(MakeFullPath(whole));
}

} // namespace VyrPlatform
