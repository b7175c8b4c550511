// Lifts the limit of 260 code units from paths.
#include "LongPath.h"

#include <VyrPlatform/WindowsCString.h>

#include <string>
#include <windows.h>

namespace VyrPlatform {

namespace {

/// Folders are limited more than files are: a file's short name must still fit into them.
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

/// The full path with backslashes and without "." and ".."; empty when the system cannot tell it.
CString MakeFull(const CString& path)
{
    std::wstring full(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetFullPathNameW(ToWide(path), static_cast<DWORD>(full.size()), full.data(), nullptr);
        if (length <= full.size()) {
            full.resize(length);
            return FromWide(full);
        }
        full.resize(length);
    }
}

} // namespace

CString AddLongPathPrefix(const CString& fullPath)
{
    if (HasSystemPrefix(fullPath))
        return fullPath;
    if (fullPath.View().starts_with(uR"(\\)"))
        return CString::Join({uR"(\\?\UNC\)", fullPath.View().substr(2)});
    return CString::Join({uR"(\\?\)", fullPath.View()});
}

CString ToSystemPath(const CString& path)
{
    if (path.IsEmpty() || path.Find(std::u16string_view(u"\0", 1)) >= 0)
        return {};
    const bool isShort = path.GetLength() <= longestPlainPath;
    if (HasSystemPrefix(path) || (isShort && IsFull(path)))
        return path;
    const CString full = MakeFull(path);
    return full.GetLength() <= longestPlainPath ? full : AddLongPathPrefix(full);
}

LongPath::LongPath(const CString& path, std::u16string_view suffix) : m_path(ToSystemPath(path))
{
    if (m_path.IsEmpty() || suffix.empty())
        return;
    m_path = m_path + suffix;
    if (m_path.GetLength() > longestPlainPath)
        m_path = ToSystemPath(m_path);
}

const wchar_t* LongPath::Get() const noexcept
{
    return ToWide(m_path);
}

} // namespace VyrPlatform
