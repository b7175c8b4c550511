// Permissions for the names in a folder: modes, the sticky bit and immutable folders.
#include <VyrHostPlatform/FolderPermission.h>

#include <gtest/gtest.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>
#include <tests/support/linux/Unprivileged.h>

#include <cerrno>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

using VyrHostPlatform::GetFolderPermission;
using VyrHostPlatform::IsOwnEntry;
using VyrTests::ScratchFolder;
using VyrTests::Unprivileged;

namespace {

const char* const notPrivileged = "only root can take the rights of another user";

CString MakeFolder(const ScratchFolder& scratch, mode_t mode)
{
    const CString path = scratch.MakeFolder(u"folder");
    EXPECT_EQ(chmod(VyrTests::ToStdPath(scratch.Path()).c_str(), 0755), 0);
    EXPECT_EQ(chmod(VyrTests::ToStdPath(path).c_str(), mode), 0);
    return path;
}

/// Sets or clears the attribute "immutable" of a folder. @return 0, or the error code.
int SetImmutable(const CString& path, bool isImmutable)
{
    const int folder = open(VyrTests::ToStdPath(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    int flags = 0;
    int error = folder >= 0 && ioctl(folder, FS_IOC_GETFLAGS, &flags) == 0 ? 0 : errno;
    if (error == 0) {
        flags = isImmutable ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
        error = ioctl(folder, FS_IOC_SETFLAGS, &flags) == 0 ? 0 : errno;
    }
    close(folder);
    return error;
}

} // namespace

TEST(FolderPermissionLinux, FolderWithoutWritePermissionIsRefused)
{
    const ScratchFolder scratch;
    const CString folder = MakeFolder(scratch, 0555);
    const Unprivileged user;
    if (!user.IsDone())
        GTEST_SKIP() << notPrivileged;
    EXPECT_EQ(GetFolderPermission(folder).error, static_cast<std::uint32_t>(EACCES));
}

TEST(FolderPermissionLinux, StickyFolderOfAnotherUserLetsOnlyOwnEntriesBeRenamed)
{
    const ScratchFolder scratch;
    const CString folder = MakeFolder(scratch, 01777);
    const CString file = scratch.WriteFile(u"folder/a");
    EXPECT_FALSE(GetFolderPermission(folder).ownEntriesOnly) << "the folder is the user's own";
    if (geteuid() != 0)
        GTEST_SKIP() << notPrivileged;
    const Unprivileged user;
    EXPECT_EQ(GetFolderPermission(folder).error, 0U);
    EXPECT_TRUE(GetFolderPermission(folder).ownEntriesOnly);
    EXPECT_FALSE(IsOwnEntry(file));
    EXPECT_TRUE(IsOwnEntry(scratch.WriteFile(u"folder/b")));
}

TEST(FolderPermissionLinux, ImmutableFolderIsRefusedForRootToo)
{
    const ScratchFolder scratch;
    const CString folder = scratch.MakeFolder(u"folder");
    if (const int error = SetImmutable(folder, true))
        GTEST_SKIP() << "a folder cannot be made immutable here, error " << error;
    EXPECT_EQ(GetFolderPermission(folder).error, static_cast<std::uint32_t>(EPERM));
    EXPECT_EQ(SetImmutable(folder, false), 0);
    EXPECT_EQ(GetFolderPermission(folder).error, 0U);
}
