// The traits of a folder on Linux: owner, mode, extended attributes. As text they are "MODE:USER:GROUP", then
// ":NAME=VALUE" for each extended attribute: the mode is octal, user and group are decimal, names and values
// hexadecimal.
#include <VyrHostPlatform/FolderTraits.h>

#include <VyrPlatform/linux/files/Descriptor.h>
#include <VyrPlatform/linux/files/FileMetadata.h>
#include <VyrPlatform/linux/files/NativePath.h>
#include <VyrPlatform/text/Digits.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <fcntl.h>
#include <iterator>
#include <string_view>
#include <sys/stat.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

namespace {

/// Opens the folder at `path`. When its mode forbids that, its owner gets access first.
int OpenFolder(const CString& path)
{
    constexpr int how = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    const NativePath native(path);
    const int folder = open(native.Get(), how);
    struct stat status;
    if (folder >= 0 || errno != EACCES || lstat(native.Get(), &status) != 0 || !S_ISDIR(status.st_mode) ||
        chmod(native.Get(), PermissionsOf(status) | S_IRWXU) != 0)
        return folder;
    return open(native.Get(), how);
}

std::string NumberText(std::uint32_t number, int base)
{
    char digits[16];
    return {digits, std::to_chars(std::begin(digits), std::end(digits), number, base).ptr};
}

std::optional<std::uint32_t> ReadNumber(std::string_view text, int base)
{
    std::uint32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, base);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

std::string_view TakePart(std::string_view& text)
{
    const std::size_t end = text.find(':');
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return part;
}

} // namespace

std::optional<FolderTraits> GetFolderTraits(const CString& path)
{
    // By path: a folder without read permission cannot be opened.
    const NativePath native(path);
    struct stat status;
    if (lstat(native.Get(), &status) != 0 || !S_ISDIR(status.st_mode))
        return std::nullopt;
    FolderTraits traits{.mode = PermissionsOf(status),
                        .owner = status.st_uid,
                        .group = status.st_gid,
                        .extended = GetExtendedAttributes(native)};
    std::sort(traits.extended.begin(), traits.extended.end());
    return traits;
}

CString ToText(const FolderTraits& traits)
{
    std::string text =
        NumberText(traits.mode, 8) + ':' + NumberText(traits.owner, 10) + ':' + NumberText(traits.group, 10);
    for (const auto& [name, value] : traits.extended)
        text.append(":").append(ToHex(name)).append("=").append(ToHex(value));
    return Encoding::FromUtf8(text);
}

std::optional<FolderTraits> ParseFolderTraits(const CString& text)
{
    const std::string bytes = Encoding::ToUtf8(text);
    std::string_view rest = bytes;
    const auto mode = ReadNumber(TakePart(rest), 8);
    const auto owner = ReadNumber(TakePart(rest), 10);
    const auto group = ReadNumber(TakePart(rest), 10);
    if (!mode || *mode > 07777 || !owner || !group)
        return std::nullopt;
    FolderTraits traits{*mode, *owner, *group, {}};
    while (!rest.empty()) {
        const std::string_view part = TakePart(rest);
        const std::size_t equals = part.find('=');
        const auto name = FromHex(part.substr(0, equals));
        const auto value = equals == std::string_view::npos ? std::nullopt : FromHex(part.substr(equals + 1));
        if (!name || name->empty() || !value)
            return std::nullopt;
        traits.extended.emplace_back(*name, *value);
    }
    return traits;
}

std::uint32_t SetFolderExtras(const CString& path, const FolderTraits& traits)
{
    const Descriptor folder(OpenFolder(path));
    if (!folder.IsOpen())
        return static_cast<std::uint32_t>(errno);
    static_cast<void>(SetOwner(folder.Get(), traits.owner, traits.group));
    return static_cast<std::uint32_t>(SetExtendedAttributes(folder.Get(), traits.extended));
}

std::uint32_t SetFolderMode(const CString& path, const FolderTraits& traits)
{
    const Descriptor folder(OpenFolder(path));
    if (!folder.IsOpen())
        return static_cast<std::uint32_t>(errno);
    const bool hasOwner = SetOwner(folder.Get(), traits.owner, traits.group);
    return static_cast<std::uint32_t>(SetPermissions(folder.Get(), traits.mode, hasOwner));
}

} // namespace VyrHostPlatform
