#include <VyrPlatform/files/FullPath.h>

#include "OpenEntry.h"

#include <string>

namespace VyrPlatform {

namespace {

/// The system's form of a path without its prefix, as people write it.
CString WithoutPrefix(const CString& path)
{
    constexpr std::u16string_view share = uR"(\\?\UNC\)";
    constexpr std::u16string_view drive = uR"(\\?\)";
    const std::u16string_view text = path;
    if (text.starts_with(share))
        return CString::Join({uR"(\\)", text.substr(share.size())});
    return text.starts_with(drive) ? CString(text.substr(drive.size())) : path;
}

} // namespace

CString GetFullPath(const CString& path)
{
    const CString full = MakeFullPath(path);
    // The separator of a root ("C:\", "\\server\share\") is part of its name.
    const bool hasSeparator = full.GetLength() > 3 && full[full.GetLength() - 1] == u'\\';
    return hasSeparator ? full.Left(full.GetLength() - 1) : full;
}

CString GetRealPath(const CString& path)
{
    const Handle file = OpenEntry(LongPath(path), FILE_READ_ATTRIBUTES, Links::Follow);
    if (!file.IsOpen())
        return {};
    std::wstring real(GetFinalPathNameByHandleW(file.Get(), nullptr, 0, VOLUME_NAME_DOS), L'\0');
    real.resize(GetFinalPathNameByHandleW(file.Get(), real.data(), static_cast<DWORD>(real.size()), VOLUME_NAME_DOS));
    return WithoutPrefix(FromWide(real));
}

} // namespace VyrPlatform
