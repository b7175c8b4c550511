#include <VyrPlatform/documents/PrivateProfile.h>
#include <VyrPlatform/windows/files/LongPath.h>

#include <string>
#include <windows.h>

namespace VyrPlatform::PrivateProfile {

namespace {

/// Makes the system drop its cached content of the file.
void ForgetContent(const LongPath& path) noexcept
{
    WritePrivateProfileStringW(nullptr, nullptr, nullptr, path.Get());
}

} // namespace

CString ReadText(const CString& path, const CString& section, const CString& key, int capacity)
{
    const LongPath longPath(path);
    ForgetContent(longPath);
    std::wstring value(static_cast<std::size_t>(capacity), L'\0');
    value.resize(GetPrivateProfileStringW(ToWide(section), ToWide(key), L"", value.data(), static_cast<DWORD>(capacity),
                                          longPath.Get()));
    return FromWide(value);
}

std::int32_t ReadInteger(const CString& path, const CString& section, const CString& key, std::int32_t defaultNumber)
{
    const LongPath longPath(path);
    ForgetContent(longPath);
    return static_cast<std::int32_t>(
        GetPrivateProfileIntW(ToWide(section), ToWide(key), defaultNumber, longPath.Get()));
}

std::uint32_t WriteText(const CString& path, const CString& section, const CString& key, const CString& value)
{
    const LongPath longPath(path);
    ForgetContent(longPath);
    return WritePrivateProfileStringW(ToWide(section), ToWide(key), ToWide(value), longPath.Get()) ? ERROR_SUCCESS
                                                                                                   : GetLastError();
}

} // namespace VyrPlatform::PrivateProfile
