// The mark of a download on Linux: a file beside the marked one, or an extended attribute, as other programs write it.
#include <VyrPlatform/files/NamedStreams.h>

#include "Descriptor.h"
#include "NativePath.h"
#include "OpenToLook.h"
#include "StatusText.h"

#include <VyrPlatform/common/files/StateText.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <iterator>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace VyrPlatform::NamedStreams {

namespace {

constexpr const char* attributeNames[] = {
    "user.DosStream.Zone.Identifier:$DATA", // Samba
    "user.DosStream.Zone.Identifier",       // Samba
    "user.Zone.Identifier",                 // ntfs-3g
    "user.xdg.origin.url",                  // browsers, download tools
    "user.xdg.referrer.url",
};

/// Whether a form that could not be read or removed does not exist. With a name that is too long for a file there is
/// none.
bool MeansNone(int error) noexcept
{
    return error == ENOENT || error == ENODATA || error == ENOTSUP || error == ENAMETOOLONG;
}

/// The result for a mark, collected over its forms.
class Outcome
{
public:
    void Add(int result) noexcept
    {
        if (result == 0)
            m_removed = true;
        else if (!MeansNone(errno))
            m_error = errno;
    }
    [[nodiscard]] std::uint32_t Code() const noexcept
    {
        return static_cast<std::uint32_t>(m_error != 0 || m_removed ? m_error : ENOENT);
    }

private:
    bool m_removed = false;
    int m_error = 0;
};

std::u16string_view WithoutSeparatorsAtEnd(std::u16string_view path) noexcept
{
    while (path.size() > 1 && FileSystem::IsSeparator(path.back()))
        path.remove_suffix(1);
    return path;
}

constexpr std::string_view siblingSuffix = ":Zone.Identifier";
constexpr std::size_t mostBytes = 64 * 1024;

/// A form, or the reason why there is none.
struct FoundForm
{
    std::optional<std::string> bytes;
    /// 0 where the file has no such form.
    int error = 0;
    CString state = {};
};

FoundForm NotFound(int error)
{
    return {std::nullopt, MeansNone(error) ? 0 : error};
}

/// The stored state of a file beside the marked one: "MODE MODIFIED ACCESSED", the mode in octal digits.
CString StateOf(const struct stat& status)
{
    return Encoding::FromUtf8(ToModeText(status.st_mode) + ' ' + ToTimeText(status.st_mtim) + ' ' +
                              ToTimeText(status.st_atim));
}

struct SiblingState
{
    mode_t mode = 0;
    /// Last access and last write, as futimens takes them.
    struct timespec times[2] = {};
};

/// The inverse of StateOf; nothing for another text.
std::optional<SiblingState> ReadState(const CString& state)
{
    const std::string bytes = StateBytes(state);
    std::string_view text = bytes;
    const auto mode = ReadModeText(TakeWord(text));
    const auto modified = ReadTimeText(TakeWord(text));
    const auto accessed = ReadTimeText(text);
    if (!mode || !modified || !accessed)
        return std::nullopt;
    return SiblingState{*mode, {*accessed, *modified}};
}

FoundForm ReadSibling(std::u16string_view path)
{
    const NativePath sibling(WithoutSeparatorsAtEnd(path), siblingSuffix);
    const Descriptor file(OpenToLook(sibling.Get(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW));
    struct stat status;
    if (!file.IsOpen() || fstat(file.Get(), &status) != 0)
        return NotFound(errno);
    if (!S_ISREG(status.st_mode))
        return NotFound(EINVAL);
    std::string bytes(mostBytes + 1, '\0');
    std::size_t size = 0;
    for (ssize_t count = 1; count > 0 && size < bytes.size(); size += static_cast<std::size_t>(count)) {
        count = read(file.Get(), bytes.data() + size, bytes.size() - size);
        if (count < 0)
            return NotFound(errno);
    }
    if (size > mostBytes)
        return NotFound(EFBIG);
    bytes.resize(size);
    return {std::move(bytes), 0, StateOf(status)};
}

FoundForm ReadAttribute(const NativePath& path, const char* name)
{
    // Most files have no mark.
    const ssize_t expected = getxattr(path.Get(), name, nullptr, 0);
    if (expected < 0)
        return NotFound(errno);
    std::string bytes(static_cast<std::size_t>(expected), '\0');
    const ssize_t size = getxattr(path.Get(), name, bytes.data(), bytes.size());
    if (size < 0)
        return NotFound(errno);
    bytes.resize(static_cast<std::size_t>(size));
    return {std::move(bytes)};
}

int WriteAll(int file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = write(file, bytes.data(), bytes.size());
        if (count < 0)
            return errno;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

/// If writing fails, the file is left empty, which is not mistaken for another mark.
int WriteSibling(std::u16string_view path, const ZoneForm& form)
{
    constexpr mode_t usual = 0666;
    const auto state = ReadState(form.state);
    if (!state && !form.state.IsEmpty())
        return EINVAL;
    const NativePath sibling(WithoutSeparatorsAtEnd(path), siblingSuffix);
    // Restricted from the start: it must not be readable before its permissions are set.
    const mode_t mode = state ? state->mode & usual : usual;
    Descriptor file(open(sibling.Get(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW, mode));
    if (!file.IsOpen())
        return errno;
    if (const int error = WriteAll(file.Get(), form.bytes)) {
        static_cast<void>(ftruncate(file.Get(), 0) == 0);
        return error;
    }
    if (state && (fchmod(file.Get(), state->mode) != 0 || futimens(file.Get(), state->times) != 0))
        return errno;
    return file.Close();
}

} // namespace

std::optional<std::vector<ZoneForm>> ReadZoneMark(const CString& path, std::uint32_t& error)
{
    const NativePath nativePath(path);
    if (access(nativePath.Get(), F_OK) != 0) {
        error = static_cast<std::uint32_t>(errno);
        return std::nullopt;
    }
    std::vector<ZoneForm> forms;
    const auto take = [&forms, &error](const CString& name, FoundForm found) {
        if (found.bytes)
            forms.push_back({name, std::move(*found.bytes), found.state});
        error = static_cast<std::uint32_t>(found.error);
        return found.error == 0;
    };
    if (!take(zoneStream, ReadSibling(path)))
        return std::nullopt;
    for (const char* const name : attributeNames)
        if (!take(Encoding::FromUtf8(name), ReadAttribute(nativePath, name)))
            return std::nullopt;
    return forms;
}

std::uint32_t WriteZoneForm(const CString& path, const ZoneForm& form)
{
    const NativePath nativePath(path);
    if (access(nativePath.Get(), F_OK) != 0)
        return static_cast<std::uint32_t>(errno);
    if (form.name == zoneStream)
        return static_cast<std::uint32_t>(WriteSibling(path, form));
    if (!form.state.IsEmpty())
        return EINVAL;
    const std::string wanted = Encoding::ToUtf8(form.name);
    const auto* const name = std::find(std::begin(attributeNames), std::end(attributeNames), wanted);
    if (name == std::end(attributeNames))
        return EINVAL;
    const int result = setxattr(nativePath.Get(), *name, form.bytes.data(), form.bytes.size(), 0);
    return static_cast<std::uint32_t>(result == 0 ? 0 : errno);
}

std::uint32_t DeleteZoneMark(const CString& path)
{
    const NativePath nativePath(path);
    if (access(nativePath.Get(), F_OK) != 0)
        return static_cast<std::uint32_t>(errno);
    Outcome outcome;
    outcome.Add(unlink(NativePath(WithoutSeparatorsAtEnd(path), siblingSuffix).Get()));
    for (const char* const name : attributeNames)
        outcome.Add(removexattr(nativePath.Get(), name));
    return outcome.Code();
}

} // namespace VyrPlatform::NamedStreams
