// Full paths of Windows, as the system words them.
#include <VyrPlatform/FullPath.h>

#include <VyrPlatform/WindowsCString.h>

#include <windows.h>

#include <string>

namespace VyrPlatform {

CString GetFullPath(const CString& path)
{
    const DWORD capacity = GetFullPathNameW(ToWide(path), 0, nullptr, nullptr);
    std::wstring full(capacity, L'\0');
    full.resize(GetFullPathNameW(ToWide(path), capacity, full.data(), nullptr));
    // The separator of a root ("C:\", "\\server\share\") is part of its name.
    if (full.size() > 3 && full.back() == L'\\')
        full.pop_back();
    return FromWide(full);
}

} // namespace VyrPlatform
