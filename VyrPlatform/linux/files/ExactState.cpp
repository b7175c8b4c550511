// Exact states on Linux: times as seconds and nanoseconds, the rest as the bytes of extended attributes and the mode.
#include <VyrPlatform/files/ExactState.h>

#include "CreationTime.h"
#include "DosAttribute.h"
#include "ExtendedAttributes.h"
#include "FileStatus.h"
#include "StatusText.h"

#include <VyrPlatform/common/files/StateText.h>
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/text/Digits.h>
#include <VyrPlatform/text/Encoding.h>

#include <cerrno>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace VyrPlatform::ExactState {

namespace {

namespace Extended = ExtendedAttributes;

constexpr mode_t allWrite = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t permissions = 07777;
constexpr std::string_view noValue = "-";

std::span<const std::byte> Bytes(const std::optional<std::string>& value) noexcept
{
    return value ? std::as_bytes(std::span(*value)) : std::span<const std::byte>();
}

std::string ToText(const std::optional<std::string>& value)
{
    return value ? ToHex(*value) : std::string(noValue);
}

/// The value of an attribute; nothing in the result where there was none. False when `word` is neither.
bool ToValue(std::string_view word, std::optional<std::string>& value)
{
    if (word == noValue)
        return true;
    value = FromHex(word);
    return value && !value->empty();
}

/// The values that keep a part: Samba's, and that of an NTFS driver.
struct Kept
{
    std::optional<std::string> samba;
    std::optional<std::string> ntfs;
};

Kept ReadKept(const NativePath& path, const char* ntfsName)
{
    return {Extended::ReadRaw(path, Extended::sambaName), Extended::ReadRaw(path, ntfsName)};
}

std::string ToText(const Kept& kept)
{
    return ToText(kept.samba) + ' ' + ToText(kept.ntfs);
}

std::optional<Kept> ToKept(std::string_view text)
{
    Kept kept;
    if (!ToValue(TakeWord(text), kept.samba) || !ToValue(TakeWord(text), kept.ntfs) || !text.empty())
        return std::nullopt;
    return kept;
}

using Merge = std::optional<std::vector<std::byte>> (*)(std::span<const std::byte>, std::span<const std::byte>);

/// Restores the part of Samba's value that `merge` selects, and the value of an NTFS driver. Writes only values that
/// differ.
int RestoreKept(const NativePath& path, const Kept& kept, const char* ntfsName, Merge merge)
{
    const Kept now = ReadKept(path, ntfsName);
    const auto merged = merge(Bytes(now.samba), Bytes(kept.samba));
    if (!merged)
        return EINVAL;
    std::optional<std::string> samba;
    if (!merged->empty())
        samba.emplace(reinterpret_cast<const char*>(merged->data()), merged->size());
    if (samba != now.samba)
        if (const int error = Extended::WriteRaw(path, Extended::sambaName, samba))
            return error;
    return kept.ntfs && kept.ntfs != now.ntfs ? Extended::WriteRaw(path, ntfsName, kept.ntfs) : 0;
}

int RestoreTime(const NativePath& path, Part part, std::string_view text)
{
    const auto time = ReadTimeText(text);
    struct statx now;
    if (!time)
        return EINVAL;
    if (!AskStatus(path, 0, STATX_MTIME | STATX_ATIME, now))
        return errno;
    // Some FUSE file systems set nothing when one of the two is omitted.
    struct timespec times[] = {{now.stx_atime.tv_sec, now.stx_atime.tv_nsec},
                               {now.stx_mtime.tv_sec, now.stx_mtime.tv_nsec}};
    times[part == Part::Accessed ? 0 : 1] = *time;
    return utimensat(AT_FDCWD, path.Get(), times, 0) == 0 ? 0 : errno;
}

int RestoreCreated(const CString& path, std::string_view text)
{
    const auto kept = ToKept(text);
    if (!kept)
        return EINVAL;
    const NativePath nativePath(path);
    struct statx now;
    if (!AskStatus(nativePath, 0, STATX_TYPE, now))
        return errno;
    const FileAttributes::LiftedReadOnly lifted(path);
    return RestoreKept(nativePath, *kept, Extended::ntfsCreatedName, WithCreatedOf);
}

int RestoreMode(const NativePath& path, mode_t kept)
{
    struct statx now;
    if (!AskStatus(path, 0, STATX_TYPE | STATX_MODE, now))
        return errno;
    const mode_t mode = (now.stx_mode & permissions & ~allWrite) | (kept & allWrite);
    if (S_ISDIR(now.stx_mode) || mode == (now.stx_mode & permissions))
        return 0;
    return chmod(path.Get(), mode) == 0 ? 0 : errno;
}

int RestoreAttributes(const CString& path, std::string_view text)
{
    const auto mode = ReadModeText(TakeWord(text));
    const auto kept = ToKept(text);
    if (!mode || !kept)
        return EINVAL;
    const NativePath nativePath(path);
    {
        const FileAttributes::LiftedReadOnly lifted(path);
        if (const int error = RestoreKept(nativePath, *kept, Extended::ntfsAttributesName, WithAttributesOf))
            return error;
    }
    return RestoreMode(nativePath, *mode);
}

} // namespace

std::optional<CString> Read(const CString& path, Part part, std::uint32_t& error)
{
    if (part != Part::Attributes) {
        auto time = ReadTime(path, part, error);
        return time ? std::optional(std::move(time->state)) : std::nullopt;
    }
    const NativePath nativePath(path);
    struct statx status;
    if (!AskStatus(nativePath, 0, STATX_MODE, status)) {
        error = static_cast<std::uint32_t>(errno);
        return std::nullopt;
    }
    if (const int refusal = Extended::GetAttributes(nativePath, status).error) {
        error = static_cast<std::uint32_t>(refusal);
        return std::nullopt;
    }
    return Encoding::FromUtf8(ToModeText(status.stx_mode) + ' ' +
                              ToText(ReadKept(nativePath, Extended::ntfsAttributesName)));
}

std::optional<TimeState> ReadTime(const CString& path, Part part, std::uint32_t& error)
{
    const NativePath nativePath(path);
    struct statx status;
    if (!AskStatus(nativePath, 0, STATX_TYPE | STATX_MODE | STATX_INO | STATX_MTIME | STATX_ATIME | STATX_BTIME,
                   status)) {
        error = static_cast<std::uint32_t>(errno);
        return std::nullopt;
    }
    const bool isReadOnly = !S_ISDIR(status.stx_mode) && !(status.stx_mode & S_IWUSR);
    if (part == Part::Created) {
        const auto created = CreatedOf(nativePath, status);
        error = static_cast<std::uint32_t>(created.error);
        if (!created.value)
            return std::nullopt;
        return TimeState{*created.value, Encoding::FromUtf8(ToText(ReadKept(nativePath, Extended::ntfsCreatedName))),
                         IdentityOf(status), isReadOnly};
    }
    const struct statx_timestamp& time = part == Part::Modified ? status.stx_mtime : status.stx_atime;
    return TimeState{ToTicks(time), Encoding::FromUtf8(ToTimeText({time.tv_sec, time.tv_nsec})), IdentityOf(status),
                     isReadOnly};
}

std::uint32_t Restore(const CString& path, Part part, const CString& state)
{
    const std::string text = StateBytes(state);
    switch (part) {
    case Part::Modified:
    case Part::Accessed:
        return static_cast<std::uint32_t>(RestoreTime(NativePath(path), part, text));
    case Part::Created:
        return static_cast<std::uint32_t>(RestoreCreated(path, text));
    case Part::Attributes:
        break;
    }
    return static_cast<std::uint32_t>(RestoreAttributes(path, text));
}

} // namespace VyrPlatform::ExactState
