#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <string>
#include <windows.h>

namespace VyrPlatform::Process {

std::optional<CString> ExpandEnvironment(const CString& text, std::uint32_t capacity)
{
    std::wstring buffer(capacity, L'\0');
    const DWORD count = ::ExpandEnvironmentStringsW(ToWide(text), buffer.data(), capacity);
    if (count == 0 || count > capacity)
        return std::nullopt;
    return FromWide({buffer.data(), ::wcsnlen(buffer.data(), capacity)});
}

} // namespace VyrPlatform::Process
