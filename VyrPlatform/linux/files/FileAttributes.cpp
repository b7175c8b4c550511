// Attributes on Linux: those that Samba and Windows file systems keep in extended attributes, and the mode.
#include <VyrPlatform/files/FileAttributes.h>

#include "ExtendedAttributes.h"
#include "FileStatus.h"
#include "ReadOnlyState.h"

#include <cerrno>
#include <fstream>
#include <string>

namespace VyrPlatform {

namespace FileAttributes {

namespace {

constexpr std::uint32_t readOnly = 0x1;
constexpr std::uint32_t folder = 0x10;
constexpr std::uint32_t normal = 0x80;
constexpr std::uint32_t noAttribute = 0x80000000;

constexpr mode_t allWrite = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t permissions = 07777;

/// The sources of the attributes of a file.
struct State
{
    bool isFolder = false;
    mode_t mode = 0;
    std::uint32_t attributes = unknown;
};

/// @return 0, or the error code.
int Ask(const NativePath& path, State& state)
{
    struct statx status;
    if (!AskStatus(path, 0, STATX_TYPE | STATX_MODE, status))
        return errno;
    const auto kept = ExtendedAttributes::GetAttributes(path, status);
    if (kept.error != 0)
        return kept.error;
    state.isFolder = S_ISDIR(status.stx_mode);
    state.mode = status.stx_mode & permissions;
    state.attributes = kept.value.value_or(0) & ~(folder | normal | noAttribute);
    if (state.isFolder)
        state.attributes |= folder;
    else if (!(state.mode & S_IWUSR))
        state.attributes |= readOnly;
    if (state.attributes == 0)
        state.attributes = normal;
    return 0;
}

/// The process's umask. (umask() can only be read by changing it, also for other threads.)
mode_t GetUmask()
{
    constexpr mode_t allOfOthers = 077;
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        unsigned mask = 0;
        if (word == "Umask:" && status >> std::oct >> mask)
            return mask;
    }
    return allOfOthers;
}

mode_t MadeWritable(mode_t mode)
{
    const mode_t readers = (mode & (S_IRGRP | S_IROTH)) >> 1;
    return mode | S_IWUSR | (readers & ~GetUmask());
}

/// The mode for the new attributes.
mode_t NewMode(const State& state, std::uint32_t attributes)
{
    const bool isWanted = attributes & readOnly;
    if (state.isFolder || isWanted == static_cast<bool>(state.attributes & readOnly))
        return state.mode;
    if (isWanted)
        return state.mode & ~allWrite;
    return state.mode & S_IWUSR ? state.mode : MadeWritable(state.mode);
}

int SetMode(const NativePath& path, mode_t mode) noexcept
{
    return chmod(path.Get(), mode) == 0 ? 0 : errno;
}

/// Sets the extended attributes; those of the namespace "user" need write permission.
int SetKept(const NativePath& path, const State& state, std::uint32_t attributes)
{
    // The mode alone is enough for the read-only state of a file without other attributes.
    const bool isWorthKeeping = (attributes & ~(folder | normal | (state.isFolder ? 0 : readOnly))) != 0;
    const std::uint32_t kept = (attributes & ~(folder | normal)) | (state.isFolder ? folder : 0);
    const int error = ExtendedAttributes::SetAttributes(path, kept, isWorthKeeping);
    if (error != EACCES || (state.mode & S_IWUSR) || SetMode(path, state.mode | S_IWUSR) != 0)
        return error;
    const int secondError = ExtendedAttributes::SetAttributes(path, kept, isWorthKeeping);
    static_cast<void>(SetMode(path, state.mode));
    return secondError;
}

} // namespace

std::uint32_t Get(const CString& path)
{
    State state;
    return Ask(NativePath(path), state) == 0 ? state.attributes : unknown;
}

std::uint32_t Set(const CString& path, std::uint32_t attributes)
{
    const NativePath nativePath(path);
    State state;
    if (const int error = Ask(nativePath, state))
        return static_cast<std::uint32_t>(error);
    if (attributes & noAttribute)
        return EINVAL;
    const ExtendedAttributes::Snapshot kept(nativePath);
    if (const int error = SetKept(nativePath, state, attributes))
        return static_cast<std::uint32_t>(error);
    const mode_t mode = NewMode(state, attributes);
    const int error = mode == state.mode ? 0 : SetMode(nativePath, mode);
    if (error != 0)
        kept.PutBack(nativePath);
    return static_cast<std::uint32_t>(error);
}

bool IsReadOnly(const CString& path)
{
    const NativePath nativePath(path);
    struct statx status;
    if (!AskStatus(nativePath, 0, STATX_TYPE | STATX_MODE, status))
        return false;
    if (!S_ISDIR(status.stx_mode))
        return IsReadOnlyFile(nativePath, status);
    return ExtendedAttributes::GetAttributes(nativePath, status).value.value_or(0) & readOnly;
}

LiftedReadOnly::LiftedReadOnly(const CString& path) : m_path(path)
{
    // Samba's own read-only bit does not prevent writing on Linux.
    const NativePath nativePath(path);
    struct statx status;
    if (!AskStatus(nativePath, 0, STATX_MODE, status) || (status.stx_mode & S_IWUSR))
        return;
    const mode_t mode = status.stx_mode & permissions;
    if (SetMode(nativePath, mode | S_IWUSR) == 0)
        m_before = mode;
}

LiftedReadOnly::~LiftedReadOnly()
{
    if (m_before)
        static_cast<void>(SetMode(NativePath(m_path), *m_before));
}

} // namespace FileAttributes

bool IsReadOnlyFile(const NativePath& path, const struct statx& status)
{
    if (!(status.stx_mode & S_IWUSR))
        return true;
    const auto kept = ExtendedAttributes::GetAttributes(path, status);
    return kept.error != 0 || (kept.value.value_or(0) & FileAttributes::readOnly);
}

} // namespace VyrPlatform
