// What stands at a path, asked of Windows.
#include <VyrPlatform/files/FileSystem.h>

#include "FileStatus.h"
#include "LongPath.h"

#include <VyrPlatform/text/WindowsCString.h>

#include <cstddef>
#include <cstring>
#include <span>
#include <string>
#include <vector>
#include <winioctl.h>

namespace VyrPlatform::FileSystem {

namespace {

/// Fills `entry` from any of the system's structures that describe a file.
template <class Information>
void Describe(const Information& information, Entry& entry) noexcept
{
    const bool isFolder = information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
    entry.kind = isFolder ? Kind::Folder : Kind::File;
    if (!isFolder)
        entry.size = Combine(information.nFileSizeHigh, information.nFileSizeLow);
    entry.modified = ToTicks(information.ftLastWriteTime);
    entry.accessed = ToTicks(information.ftLastAccessTime);
    entry.created = ToTicks(information.ftCreationTime);
}

/// What the parent folder tells of `path`, which is known to exist.
bool Find(const LongPath& path, WIN32_FIND_DATAW& found) noexcept
{
    const HANDLE search = FindFirstFileW(path.Get(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    FindClose(search);
    return true;
}

/// Describes what the link at `path` leads to; leaves `entry` as it is when that is nothing.
void DescribeTarget(const LongPath& path, Entry& entry) noexcept
{
    const HANDLE target =
        CreateFileW(path.Get(), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (target == INVALID_HANDLE_VALUE)
        return;
    BY_HANDLE_FILE_INFORMATION information;
    if (GetFileInformationByHandle(target, &information))
        Describe(information, entry);
    CloseHandle(target);
}

/// For a path that does not tell its attributes by itself: a file that is locked (its folder still does) or a device.
Entry QueryUncommon(const LongPath& path, DWORD error) noexcept
{
    Entry entry;
    WIN32_FIND_DATAW found;
    if (error == ERROR_SHARING_VIOLATION && Find(path, found))
        Describe(found, entry);
    else if (GetFileAttributesW(path.Get()) != INVALID_FILE_ATTRIBUTES)
        entry.kind = Kind::Other;
    return entry;
}

/// A number of a reparse point's data, 0 where that is too short.
template <class Number>
Number NumberAt(std::span<const std::byte> data, std::size_t offset) noexcept
{
    Number number = 0;
    if (offset + sizeof(number) <= data.size())
        std::memcpy(&number, data.data() + offset, sizeof(number));
    return number;
}

/// Where a reparse point leads to. (REPARSE_DATA_BUFFER in the documentation of the Windows drivers.)
std::optional<CString> ParseReparsePoint(std::span<const std::byte> data)
{
    constexpr std::size_t namePlace = 8;
    constexpr std::size_t junctionNames = 16;
    constexpr std::size_t linkNames = 20;
    const auto tag = NumberAt<std::uint32_t>(data, 0);
    if (tag != IO_REPARSE_TAG_SYMLINK && tag != IO_REPARSE_TAG_MOUNT_POINT)
        return std::nullopt;
    const std::size_t start =
        (tag == IO_REPARSE_TAG_SYMLINK ? linkNames : junctionNames) + NumberAt<std::uint16_t>(data, namePlace);
    const std::size_t size = NumberAt<std::uint16_t>(data, namePlace + sizeof(std::uint16_t));
    if (start + size > data.size())
        return std::nullopt;
    std::wstring target(size / sizeof(wchar_t), L'\0');
    std::memcpy(target.data(), data.data() + start, target.size() * sizeof(wchar_t));
    return FromWide(target);
}

} // namespace

Entry Query(const CString& path)
{
    const LongPath longPath(path);
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesExW(longPath.Get(), GetFileExInfoStandard, &data))
        return QueryUncommon(longPath, GetLastError());
    Entry entry;
    WIN32_FIND_DATAW found;
    if ((data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) && Find(longPath, found) && IsLink(found)) {
        entry.isLink = true;
        entry.kind = Kind::Other;
        DescribeTarget(longPath, entry);
    } else {
        Describe(data, entry);
    }
    return entry;
}

bool Exists(const CString& path)
{
    return GetFileAttributesW(LongPath(path).Get()) != INVALID_FILE_ATTRIBUTES ||
           GetLastError() == ERROR_SHARING_VIOLATION;
}

bool IsFolder(const CString& path)
{
    const DWORD attributes = GetFileAttributesW(LongPath(path).Get());
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_DIRECTORY))
        return false;
    return !(attributes & FILE_ATTRIBUTE_REPARSE_POINT) || Query(path).kind == Kind::Folder;
}

std::optional<CString> GetLinkTarget(const CString& path)
{
    const HANDLE link =
        CreateFileW(LongPath(path).Get(), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (link == INVALID_HANDLE_VALUE)
        return std::nullopt;
    std::vector<std::byte> data(MAXIMUM_REPARSE_DATA_BUFFER_SIZE);
    DWORD size = 0;
    const BOOL isRead = DeviceIoControl(link, FSCTL_GET_REPARSE_POINT, nullptr, 0, data.data(),
                                        static_cast<DWORD>(data.size()), &size, nullptr);
    CloseHandle(link);
    return isRead ? ParseReparsePoint(std::span(data).first(size)) : std::nullopt;
}

std::uint32_t CreateFolder(const CString& path)
{
    return CreateDirectoryW(LongPath(path).Get(), nullptr) ? 0 : GetLastError();
}

bool IsSeparator(char16_t unit) noexcept
{
    return unit == u'\\' || unit == u'/';
}

char16_t Separator() noexcept
{
    return u'\\';
}

} // namespace VyrPlatform::FileSystem
