// Renames without replacing, and over a file, on Linux.
#include <VyrHostPlatform/RenameFile.h>

#include <VyrPlatform/linux/files/Descriptor.h>
#include <VyrPlatform/linux/files/FileIdentityAt.h>
#include <VyrPlatform/linux/files/FileMetadata.h>
#include <VyrPlatform/linux/files/NativePath.h>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

namespace {

/// A name in an open folder, or a path in AT_FDCWD.
struct Place
{
    int folder;
    const char* name;
};

std::uint32_t LastError() noexcept
{
    return static_cast<std::uint32_t>(errno);
}

/// For folders, which cannot have a second link. Anything created at `to` after the check is still safe: the system
/// replaces only an empty folder.
std::uint32_t LookAndRename(Place from, Place to) noexcept
{
    const FileState target = LookAtFile(to.folder, to.name);
    if (target.kind != FileSystem::Kind::Missing)
        return EEXIST;
    if (target.error != ENOENT)
        return target.error;
    return renameat(from.folder, from.name, to.folder, to.name) == 0 ? 0 : LastError();
}

std::uint32_t LinkAndUnlink(Place from, Place to) noexcept
{
    if (linkat(from.folder, from.name, to.folder, to.name, 0) != 0)
        return LastError();
    if (unlinkat(from.folder, from.name, 0) == 0)
        return 0;
    const std::uint32_t error = LastError();
    unlinkat(to.folder, to.name, 0);
    return error;
}

std::uint32_t RenameInTwoCalls(Place from, Place to) noexcept
{
    const FileState source = LookAtFile(from.folder, from.name);
    if (source.kind == FileSystem::Kind::Missing)
        return source.error;
    return source.kind == FileSystem::Kind::Folder ? LookAndRename(from, to) : LinkAndUnlink(from, to);
}

std::uint32_t Rename(Place from, Place to) noexcept
{
    if (renameat2(from.folder, from.name, to.folder, to.name, RENAME_NOREPLACE) == 0)
        return 0;
    // A file system without this call returns EINVAL. One with it returns it for a folder moved into itself, which the
    // fallbacks refuse, too.
    const std::uint32_t error = LastError();
    return error == EINVAL || error == ENOSYS ? RenameInTwoCalls(from, to) : error;
}

} // namespace

std::uint32_t RenameNoReplace(const CString& from, const CString& to)
{
    return Rename({AT_FDCWD, NativePath(from).Get()}, {AT_FDCWD, NativePath(to).Get()});
}

bool IsTargetTaken(std::uint32_t error) noexcept
{
    return error == EEXIST;
}

bool IsOtherFileSystem(std::uint32_t error) noexcept
{
    return error == EXDEV;
}

std::uint32_t RenameOver(const CString& from, const CString& to)
{
    const NativePath source(from);
    const NativePath target(to);
    struct stat replaced;
    if (lstat(target.Get(), &replaced) != 0)
        return LastError();
    if (!S_ISREG(replaced.st_mode))
        return EEXIST;
    const Descriptor file(open(source.Get(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    if (!file.IsOpen())
        return LastError();
    const bool hasOwner = SetOwner(file.Get(), replaced.st_uid, replaced.st_gid);
    if (const int error = SetPermissions(file.Get(), PermissionsOf(replaced), hasOwner))
        return static_cast<std::uint32_t>(error);
    return std::rename(source.Get(), target.Get()) == 0 ? 0 : LastError();
}

OpenFolder::OpenFolder(const CString& path)
    : m_path(path), m_handle(open(NativePath(path).Get(), O_PATH | O_DIRECTORY | O_CLOEXEC))
{
    if (m_handle < 0)
        m_error = LastError();
}

OpenFolder::~OpenFolder()
{
    if (m_handle >= 0)
        close(static_cast<int>(m_handle));
}

FileState OpenFolder::Look(std::u16string_view name) const
{
    return LookAtFile(static_cast<int>(m_handle), NativePath(name).Get());
}

std::uint32_t OpenFolder::RenameNoReplace(std::u16string_view name, const OpenFolder& target,
                                          std::u16string_view newName) const
{
    return Rename({static_cast<int>(m_handle), NativePath(name).Get()},
                  {static_cast<int>(target.m_handle), NativePath(newName).Get()});
}

std::uint32_t OpenFolder::DropSecondName(std::u16string_view name, const OpenFolder& kept,
                                         std::u16string_view keptName) const
{
    const NativePath second(name);
    const FileState dropped = LookAtFile(static_cast<int>(m_handle), second.Get());
    const FileState remaining = kept.Look(keptName);
    if (dropped.kind == FileSystem::Kind::Missing)
        return dropped.error;
    if (dropped.kind == FileSystem::Kind::Folder || dropped.identity != remaining.identity || dropped.links < 2)
        return EEXIST;
    return unlinkat(static_cast<int>(m_handle), second.Get(), 0) == 0 ? 0 : LastError();
}

std::uint32_t OpenFolder::MakeFolder(std::u16string_view name) const
{
    return mkdirat(static_cast<int>(m_handle), NativePath(name).Get(), 0777) == 0 ? 0 : LastError();
}

std::uint32_t OpenFolder::RemoveEmptyFolder(std::u16string_view name) const
{
    return unlinkat(static_cast<int>(m_handle), NativePath(name).Get(), AT_REMOVEDIR) == 0 ? 0 : LastError();
}

} // namespace VyrHostPlatform
