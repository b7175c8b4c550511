#include <VyrPlatform/registry/Registry.h>

#include <VyrPlatform/files/FileTicks.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <string>
#include <utility>
#include <windows.h>

namespace VyrPlatform::Registry {

namespace {

static_assert(Error::notFound == ERROR_FILE_NOT_FOUND && Error::moreData == ERROR_MORE_DATA &&
              Error::noMoreItems == ERROR_NO_MORE_ITEMS && Error::keyDeleted == ERROR_KEY_DELETED &&
              Error::badPathName == ERROR_BAD_PATHNAME && Error::invalidParameter == ERROR_INVALID_PARAMETER);

std::uint32_t Code(LSTATUS status) noexcept
{
    return static_cast<std::uint32_t>(status);
}

/// The name that `ask(buffer, length)` writes into a buffer of `capacity` code units.
template <class Ask>
NameAtIndex AskForName(std::uint32_t capacity, Ask ask)
{
    std::wstring buffer(capacity, L'\0');
    DWORD length = capacity;
    const LSTATUS status = ask(buffer.data(), &length);
    if (status != ERROR_SUCCESS)
        return {Code(status), {}};
    return {Error::none, FromWide({buffer.data(), length})};
}

} // namespace

Key::Key(Key&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)), m_error(other.m_error) {}

Key& Key::operator=(Key&& other) noexcept
{
    std::swap(m_handle, other.m_handle);
    std::swap(m_error, other.m_error);
    return *this;
}

Key::~Key()
{
    if (m_handle)
        ::RegCloseKey(m_handle);
}

Key Key::Open(Handle parent, const CString& path, Access access)
{
    const REGSAM rights = access == Access::ReadWrite ? KEY_READ | KEY_WRITE : KEY_READ;
    Handle handle = nullptr;
    const LSTATUS status = ::RegOpenKeyExW(parent, ToWide(path), 0, rights, &handle);
    return status == ERROR_SUCCESS ? Key(handle, Error::none) : Key(nullptr, Code(status));
}

Key Key::Create(Handle parent, const CString& path)
{
    Handle handle = nullptr;
    const LSTATUS status = ::RegCreateKeyExW(parent, ToWide(path), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                             KEY_READ | KEY_WRITE, nullptr, &handle, nullptr);
    return status == ERROR_SUCCESS ? Key(handle, Error::none) : Key(nullptr, Code(status));
}

NameAtIndex EnumerateKey(Handle key, std::uint32_t index, std::uint32_t capacity)
{
    return AskForName(capacity, [&](wchar_t* buffer, DWORD* length) {
        return ::RegEnumKeyExW(key, index, buffer, length, nullptr, nullptr, nullptr, nullptr);
    });
}

NameAtIndex EnumerateValue(Handle key, std::uint32_t index, std::uint32_t capacity)
{
    return AskForName(capacity, [&](wchar_t* buffer, DWORD* length) {
        return ::RegEnumValueW(key, index, buffer, length, nullptr, nullptr, nullptr, nullptr);
    });
}

ReadResult ReadValue(Handle key, const CString& name, std::span<std::byte> buffer)
{
    DWORD type = REG_NONE;
    auto count = static_cast<DWORD>(buffer.size());
    const LSTATUS status =
        ::RegQueryValueExW(key, ToWide(name), nullptr, &type, reinterpret_cast<BYTE*>(buffer.data()), &count);
    if (status != ERROR_SUCCESS && status != ERROR_MORE_DATA)
        return {Code(status)};
    return {Code(status), type, count};
}

std::optional<CString> LoadIndirectText(Handle key, const CString& name, std::uint32_t capacity)
{
    std::wstring buffer(capacity, L'\0');
    const auto byteCount = static_cast<DWORD>(capacity * sizeof(wchar_t));
    if (::RegLoadMUIStringW(key, ToWide(name), buffer.data(), byteCount, nullptr, 0, nullptr) != ERROR_SUCCESS)
        return std::nullopt;
    return FromWide({buffer.data(), ::wcsnlen(buffer.data(), capacity)});
}

std::optional<FileTicks> GetLastWrite(Handle key)
{
    FILETIME time{};
    if (::RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                           nullptr, &time) != ERROR_SUCCESS)
        return std::nullopt;
    return ToTicks(time);
}

std::uint32_t SetNumber(Handle key, const CString& name, std::uint32_t number)
{
    return Code(
        ::RegSetValueExW(key, ToWide(name), 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), sizeof number));
}

std::uint32_t RemoveValue(Handle key, const CString& name)
{
    return Code(::RegDeleteValueW(key, ToWide(name)));
}

std::uint32_t RemoveTree(Handle parent, const CString& path)
{
    // For an empty path the system would empty the parent.
    if (path.IsEmpty())
        return Error::invalidParameter;
    return Code(::RegDeleteTreeW(parent, ToWide(path)));
}

} // namespace VyrPlatform::Registry
