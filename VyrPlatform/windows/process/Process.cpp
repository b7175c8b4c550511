#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>
#include <windows.h>

#include <shlobj.h>

namespace VyrPlatform::Process {

namespace {

/// The text that `ask(buffer, size)` writes; it returns the length, or the required size where the buffer is too small.
template <class Ask>
CString AskForText(Ask ask)
{
    std::wstring text(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = ask(text.data(), static_cast<DWORD>(text.size()));
        if (length < text.size())
            return FromWide({text.data(), length});
        text.resize(length == text.size() ? text.size() * 2 : length);
    }
}

/// The program's version resource; empty when it has none.
std::vector<std::byte> ReadVersionResource()
{
    const CString path = GetProgramPath();
    const DWORD size = ::GetFileVersionInfoSizeW(ToWide(path), nullptr);
    std::vector<std::byte> resource(size);
    if (size == 0 || !::GetFileVersionInfoW(ToWide(path), 0, size, resource.data()))
        return {};
    return resource;
}

/// The value of `key` in `resource`; a null pointer and 0 when there is none. The unit of the size depends on the key.
template <class Value>
std::pair<const Value*, UINT> Look(const std::vector<std::byte>& resource, const wchar_t* key)
{
    void* value = nullptr;
    UINT size = 0;
    if (!::VerQueryValueW(resource.data(), key, &value, &size))
        return {nullptr, 0};
    return {static_cast<const Value*>(value), size};
}

struct Translation
{
    WORD language;
    WORD codePage;
};

/// The text `name` in the resource's first language (US English in Unicode where it names none).
CString LookText(const std::vector<std::byte>& resource, const char16_t* name)
{
    const auto [listed, size] = Look<Translation>(resource, L"\\VarFileInfo\\Translation");
    const Translation translation = listed && size >= sizeof(Translation) ? *listed : Translation{0x0409, 1200};
    CString key;
    key.Format(u"\\StringFileInfo\\%04x%04x\\%s", translation.language, translation.codePage, name);
    const auto [text, length] = Look<wchar_t>(resource, ToWide(key));
    return text ? FromWide({text, ::wcsnlen(text, length)}) : CString();
}

ProgramVersion ReadProgramVersion()
{
    ProgramVersion version;
    const std::vector<std::byte> resource = ReadVersionResource();
    if (resource.empty())
        return version;
    const auto [fixed, size] = Look<VS_FIXEDFILEINFO>(resource, L"\\");
    if (fixed && size >= sizeof(VS_FIXEDFILEINFO))
        version.file = {HIWORD(fixed->dwFileVersionMS), LOWORD(fixed->dwFileVersionMS), HIWORD(fixed->dwFileVersionLS),
                        LOWORD(fixed->dwFileVersionLS)};
    version.productName = LookText(resource, u"ProductName");
    version.productVersion = LookText(resource, u"ProductVersion");
    return version;
}

} // namespace

CString GetProgramPath()
{
    // A path that is too long is returned truncated, with the buffer's size as its length.
    return AskForText([](wchar_t* buffer, DWORD size) { return ::GetModuleFileNameW(nullptr, buffer, size); });
}

const ProgramVersion& GetProgramVersion()
{
    static const ProgramVersion version = ReadProgramVersion();
    return version;
}

CString GetSystemFolder()
{
    return AskForText([](wchar_t* buffer, DWORD size) { return ::GetSystemDirectoryW(buffer, size); });
}

CString GetSystemAppsFolder()
{
    return AskForText([](wchar_t* buffer, DWORD size) { return ::GetSystemWindowsDirectoryW(buffer, size); }) +
           u"\\SystemApps";
}

CString GetDataFolder(DataLocation location)
{
    const KNOWNFOLDERID& id = location == DataLocation::Roaming ? FOLDERID_RoamingAppData : FOLDERID_LocalAppData;
    PWSTR path = nullptr;
    const HRESULT result = ::SHGetKnownFolderPath(id, KF_FLAG_DONT_VERIFY, nullptr, &path);
    const std::unique_ptr<wchar_t, decltype(&::CoTaskMemFree)> owner(path, ::CoTaskMemFree);
    return SUCCEEDED(result) ? FromWide(path) : CString();
}

std::optional<CString> GetEnvironment(const CString& name)
{
    ::SetLastError(ERROR_SUCCESS);
    const CString value =
        AskForText([&](wchar_t* buffer, DWORD size) { return ::GetEnvironmentVariableW(ToWide(name), buffer, size); });
    if (value.IsEmpty() && ::GetLastError() == ERROR_ENVVAR_NOT_FOUND)
        return std::nullopt;
    return value;
}

CString GetCurrentFolder()
{
    return AskForText([](wchar_t* buffer, DWORD size) { return ::GetCurrentDirectoryW(size, buffer); });
}

CString GetErrorMessage(std::uint32_t code)
{
    wchar_t* text = nullptr;
    constexpr DWORD flags = FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM |
                            FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
    const DWORD length = ::FormatMessageW(flags, nullptr, code, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    const std::unique_ptr<wchar_t, decltype(&::LocalFree)> owner(text, ::LocalFree);
    std::wstring_view message(length ? text : L"", length);
    while (!message.empty() && message.back() <= L' ')
        message.remove_suffix(1);
    return FromWide(message);
}

} // namespace VyrPlatform::Process
