#include "ReparsePoint.h"

#include "OpenEntry.h"

#include <cstring>
#include <string>
#include <winioctl.h>

namespace VyrPlatform {

namespace {

/// A number in a reparse point's data; 0 beyond the end.
template <class Number>
Number NumberAt(std::span<const std::byte> data, std::size_t offset) noexcept
{
    Number number = 0;
    if (offset + sizeof(number) <= data.size())
        std::memcpy(&number, data.data() + offset, sizeof(number));
    return number;
}

/// The name whose offset (from `names` on) and size in bytes are at `place`.
std::optional<CString> NameAt(std::span<const std::byte> data, std::size_t names, std::size_t place)
{
    const std::size_t start = names + NumberAt<std::uint16_t>(data, place);
    const std::size_t size = NumberAt<std::uint16_t>(data, place + sizeof(std::uint16_t));
    if (start + size > data.size())
        return std::nullopt;
    std::wstring name(size / sizeof(wchar_t), L'\0');
    std::memcpy(name.data(), data.data() + start, name.size() * sizeof(wchar_t));
    return FromWide(name);
}

/// Gives the folder at `path` the data of a junction.
DWORD SetReparsePoint(const LongPath& path, std::vector<std::byte> data)
{
    const Handle folder = OpenEntry(path, GENERIC_WRITE, Links::Keep);
    DWORD size = 0;
    const bool isSet = folder.IsOpen() && DeviceIoControl(folder.Get(), FSCTL_SET_REPARSE_POINT, data.data(),
                                                          static_cast<DWORD>(data.size()), nullptr, 0, &size, nullptr);
    return isSet ? ERROR_SUCCESS : GetLastError();
}

DWORD MakeJunction(const LongPath& path, std::vector<std::byte> data)
{
    if (!CreateDirectoryW(path.Get(), nullptr))
        return GetLastError();
    const DWORD error = SetReparsePoint(path, std::move(data));
    if (error != ERROR_SUCCESS)
        RemoveDirectoryW(path.Get());
    return error;
}

} // namespace

std::optional<LinkTarget> ParseReparsePoint(std::span<const std::byte> data)
{
    constexpr std::size_t pathPlace = 8;
    constexpr std::size_t shownPathPlace = 12;
    constexpr std::size_t junctionNames = 16;
    constexpr std::size_t linkNames = 20;
    const auto tag = NumberAt<std::uint32_t>(data, 0);
    if (tag != IO_REPARSE_TAG_SYMLINK && tag != IO_REPARSE_TAG_MOUNT_POINT)
        return std::nullopt;
    const bool isJunction = tag == IO_REPARSE_TAG_MOUNT_POINT;
    const std::size_t names = isJunction ? junctionNames : linkNames;
    const std::optional<CString> path = NameAt(data, names, pathPlace);
    const std::optional<CString> shownPath = NameAt(data, names, shownPathPlace);
    if (!path || !shownPath)
        return std::nullopt;
    return LinkTarget{isJunction, *path, *shownPath};
}

std::vector<std::byte> ReadReparsePoint(const LongPath& path)
{
    const Handle link = OpenEntry(path, FILE_READ_ATTRIBUTES, Links::Keep);
    if (!link.IsOpen())
        return {};
    std::vector<std::byte> data(MAXIMUM_REPARSE_DATA_BUFFER_SIZE);
    DWORD size = 0;
    const BOOL isRead = DeviceIoControl(link.Get(), FSCTL_GET_REPARSE_POINT, nullptr, 0, data.data(),
                                        static_cast<DWORD>(data.size()), &size, nullptr);
    data.resize(isRead ? size : 0);
    return data;
}

std::uint32_t CopyReparsePoint(const LongPath& source, const LongPath& destination)
{
    constexpr DWORD allowUnprivileged = 0x2;
    const DWORD attributes = GetFileAttributesW(source.Get());
    std::vector<std::byte> data = ReadReparsePoint(source);
    if (data.empty())
        return GetLastError();
    const std::optional<LinkTarget> target = ParseReparsePoint(data);
    if (!target)
        return ERROR_NOT_SUPPORTED;
    if (target->isJunction)
        return MakeJunction(destination, std::move(data));
    const DWORD kind = attributes & FILE_ATTRIBUTE_DIRECTORY ? SYMBOLIC_LINK_FLAG_DIRECTORY : 0;
    return CreateSymbolicLinkW(destination.Get(), ToWide(target->shownPath), kind | allowUnprivileged) ? ERROR_SUCCESS
                                                                                                       : GetLastError();
}

} // namespace VyrPlatform
