// The state of a folder on Linux: "MODE:USER:GROUP", then ":NAME=VALUE" for each extended attribute. Mode is octal,
// user and group are decimal, names and values hexadecimal.
#include <VyrHostPlatform/FolderState.h>

#include <VyrPlatform/linux/files/FileMetadata.h>
#include <VyrPlatform/linux/files/NativePath.h>
#include <VyrPlatform/text/Digits.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace VyrHostPlatform {

using VyrPlatform::FromHex;
using VyrPlatform::NativePath;
using VyrPlatform::ToHex;

namespace {

struct FolderState
{
    mode_t mode = 0;
    uid_t user = 0;
    gid_t group = 0;
    VyrPlatform::ExtendedList attributes;
};

template <class Number>
std::optional<Number> ReadNumber(std::string_view text, int base)
{
    Number number = 0;
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

std::optional<FolderState> Parse(const CString& text)
{
    std::string bytes;
    for (const char16_t unit : text.View())
        bytes += unit < 0x80 ? static_cast<char>(unit) : '?';
    std::string_view rest = bytes;
    const auto mode = ReadNumber<mode_t>(TakePart(rest), 8);
    const auto user = ReadNumber<uid_t>(TakePart(rest), 10);
    const auto group = ReadNumber<gid_t>(TakePart(rest), 10);
    if (!mode || *mode > 07777 || !user || !group)
        return std::nullopt;
    FolderState state{*mode, *user, *group, {}};
    while (!rest.empty()) {
        const std::string_view part = TakePart(rest);
        const std::size_t equals = part.find('=');
        const auto name = FromHex(part.substr(0, equals));
        const auto value = equals == std::string_view::npos ? std::nullopt : FromHex(part.substr(equals + 1));
        if (!name || name->empty() || !value)
            return std::nullopt;
        state.attributes.emplace_back(*name, *value);
    }
    return state;
}

} // namespace

std::optional<CString> ReadFolderState(const CString& path, std::uint32_t& error)
{
    const NativePath native(path);
    struct stat status;
    if (lstat(native.Get(), &status) != 0) {
        error = static_cast<std::uint32_t>(errno);
        return std::nullopt;
    }
    char start[64];
    char* end = std::to_chars(start, start + 16, status.st_mode & 07777U, 8).ptr;
    *end++ = ':';
    end = std::to_chars(end, start + 40, status.st_uid).ptr;
    *end++ = ':';
    end = std::to_chars(end, start + 60, status.st_gid).ptr;
    std::string text(start, end);
    VyrPlatform::ExtendedList attributes = VyrPlatform::GetExtendedAttributes(native);
    // So that equal folders have equal states.
    std::sort(attributes.begin(), attributes.end());
    for (const auto& [name, value] : attributes)
        text.append(":").append(ToHex(name)).append("=").append(ToHex(value));
    return CString(std::u16string_view(std::u16string(text.begin(), text.end())));
}

std::uint32_t RestoreFolderState(const CString& path, const CString& state)
{
    const std::optional<FolderState> parsed = Parse(state);
    if (!parsed)
        return EINVAL;
    const NativePath native(path);
    // Only root may give a folder away.
    if (lchown(native.Get(), parsed->user, parsed->group) != 0 && errno != EPERM && errno != EINVAL)
        return static_cast<std::uint32_t>(errno);
    for (const auto& [name, value] : parsed->attributes)
        (void)lsetxattr(native.Get(), name.c_str(), value.data(), value.size(), 0);
    // Last, since it may forbid writing.
    return chmod(native.Get(), parsed->mode) == 0 ? 0U : static_cast<std::uint32_t>(errno);
}

bool IsFolderState(const CString& state)
{
    return Parse(state).has_value();
}

} // namespace VyrHostPlatform
