#include "FileIdentityAt.h"

#include "FileStatus.h"

#include <cerrno>

namespace VyrPlatform {

namespace {

FileSystem::Kind KindOf(unsigned mode) noexcept
{
    if (S_ISREG(mode))
        return FileSystem::Kind::File;
    return S_ISDIR(mode) ? FileSystem::Kind::Folder : FileSystem::Kind::Other;
}

} // namespace

FileState LookAtFile(int folder, const char* name) noexcept
{
    constexpr unsigned mask = STATX_TYPE | STATX_INO | STATX_NLINK | STATX_SIZE | STATX_MTIME;
    FileState state;
    struct statx status;
    if (statx(folder, name, AT_SYMLINK_NOFOLLOW, mask, &status) != 0) {
        state.error = static_cast<std::uint32_t>(errno);
        return state;
    }
    state.kind = KindOf(status.stx_mode);
    state.identity = IdentityOf(status);
    state.size = state.kind == FileSystem::Kind::File ? static_cast<std::int64_t>(status.stx_size) : 0;
    state.modified = ToTicks(status.stx_mtime);
    state.links = status.stx_nlink;
    return state;
}

FileState LookAtFile(const CString& path)
{
    return LookAtFile(AT_FDCWD, NativePath(path).Get());
}

} // namespace VyrPlatform
