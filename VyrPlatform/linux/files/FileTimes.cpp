#include <VyrPlatform/files/FileTimes.h>

#include "CreationTime.h"
#include "ExtendedAttributes.h"
#include "FileStatus.h"
#include "ReadOnlyState.h"

#include <VyrPlatform/time/Epochs.h>

#include <cerrno>

namespace VyrPlatform {

namespace FileTimes {

namespace {

/// The range of times that every file system can store: FAT begins in 1980, and 32 bits end in 2038.
constexpr FileTicks firstOfAll = (secondsToUnixEpoch + 315'532'800 + secondsPerDay) * ticksPerSecond;
constexpr FileTicks lastOfAll = (secondsToUnixEpoch + 0x7FFF'FFFF - secondsPerDay) * ticksPerSecond;

struct timespec AsItWas(const struct statx_timestamp& time) noexcept
{
    return {time.tv_sec, time.tv_nsec};
}

/// The time to set. To keep a time, its present value is passed: some FUSE file systems (exfat-fuse) set nothing when a
/// time is omitted.
struct timespec NewTime(FileTicks wanted, const struct statx_timestamp& before) noexcept
{
    return wanted == 0 ? AsItWas(before) : ToTimespec(wanted);
}

bool CanBeOutOfRange(FileTicks wanted) noexcept
{
    return wanted != 0 && (wanted < firstOfAll || wanted > lastOfAll);
}

/// Whether the time that was stored for `wanted` is too far off: file systems store the nearest value that they can
/// represent, which may be off by centuries, and FAT stores only the day of the last access.
bool IsFarOff(const struct statx_timestamp& now, FileTicks wanted) noexcept
{
    constexpr FileTicks twoDays = 2 * secondsPerDay * ticksPerSecond;
    const FileTicks ticks = ToTicks(now);
    return wanted != 0 && (ticks > wanted ? ticks - wanted : wanted - ticks) > twoDays;
}

/// Sets last write and last access, or neither. @return 0, or the error code.
int WriteKernelTimes(const NativePath& path, const NewTimes& times, const struct statx& before)
{
    const struct timespec wanted[] = {NewTime(times.accessed, before.stx_atime),
                                      NewTime(times.modified, before.stx_mtime)};
    if (utimensat(AT_FDCWD, path.Get(), wanted, 0) != 0)
        return errno;
    if (!CanBeOutOfRange(times.modified) && !CanBeOutOfRange(times.accessed))
        return 0;
    struct statx after;
    if (!AskStatus(path, 0, STATX_MTIME | STATX_ATIME, after) ||
        (!IsFarOff(after.stx_mtime, times.modified) && !IsFarOff(after.stx_atime, times.accessed)))
        return 0;
    const struct timespec old[] = {AsItWas(before.stx_atime), AsItWas(before.stx_mtime)};
    utimensat(AT_FDCWD, path.Get(), old, 0);
    return ERANGE;
}

/// Sets all three, or none.
int WriteAllTimes(const NativePath& path, const NewTimes& times, const struct statx& before)
{
    const ExtendedAttributes::Snapshot kept(path);
    if (const int error = ExtendedAttributes::SetCreated(path, times.created))
        return error;
    const int error = WriteKernelTimes(path, times, before);
    if (error != 0)
        kept.PutBack(path);
    return error;
}

} // namespace

std::optional<FileTicks> GetModified(const CString& path)
{
    struct statx status;
    if (!AskStatus(NativePath(path), 0, STATX_MTIME, status))
        return std::nullopt;
    return ToTicks(status.stx_mtime);
}

std::optional<FileTicks> GetCreated(const CString& path)
{
    const NativePath nativePath(path);
    struct statx status;
    if (!AskStatus(nativePath, 0, STATX_BTIME | STATX_MTIME, status))
        return std::nullopt;
    return CreatedOf(nativePath, status).value;
}

std::optional<FileTicks> GetAccessed(const CString& path)
{
    struct statx status;
    if (!AskStatus(NativePath(path), 0, STATX_ATIME, status))
        return std::nullopt;
    return ToTicks(status.stx_atime);
}

std::uint32_t SetModified(const CString& path, FileTicks modified)
{
    const struct timespec times[] = {{0, UTIME_OMIT}, ToTimespec(modified)};
    return utimensat(AT_FDCWD, NativePath(path).Get(), times, 0) == 0 ? 0 : static_cast<std::uint32_t>(errno);
}

std::uint32_t SetCreated(const CString& path, FileTicks created)
{
    return static_cast<std::uint32_t>(ExtendedAttributes::SetCreated(NativePath(path), created));
}

std::uint32_t Write(const CString& path, const NewTimes& times)
{
    const NativePath nativePath(path);
    struct statx before;
    if (!AskStatus(nativePath, 0, STATX_TYPE | STATX_MODE | STATX_MTIME | STATX_ATIME, before))
        return static_cast<std::uint32_t>(errno);
    if (times.created < 0 || times.modified < 0 || times.accessed < 0)
        return EINVAL;
    if (!S_ISDIR(before.stx_mode) && IsReadOnlyFile(nativePath, before))
        return EACCES;
    return static_cast<std::uint32_t>(times.created == 0 ? WriteKernelTimes(nativePath, times, before)
                                                         : WriteAllTimes(nativePath, times, before));
}

} // namespace FileTimes

ExtendedAttributes::Reading<FileTicks> CreatedOf(const NativePath& path, const struct statx& status)
{
    const auto kept = ExtendedAttributes::GetSambaCreated(path);
    if (kept.value || kept.error != 0)
        return kept;
    // A Windows file system that has a birth time has the same time in its attributes.
    if (status.stx_mask & STATX_BTIME)
        return {ToTicks(status.stx_btime)};
    return {ExtendedAttributes::GetNtfsCreated(path).value_or(ToTicks(status.stx_mtime))};
}

} // namespace VyrPlatform
