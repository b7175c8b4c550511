// Owner, mode and extended attributes of folders on Linux.
#include <VyrHostPlatform/FolderTraits.h>

#include <tests/support/linux/Unprivileged.h>

#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using VyrTests::ScratchFolder;

namespace {

std::string BytesOf(const CString& path)
{
    return VyrTests::ToStdPath(path).string();
}

struct stat StatusOf(const CString& path)
{
    struct stat status = {};
    EXPECT_EQ(stat(BytesOf(path).c_str(), &status), 0);
    return status;
}

/// Through their text, too, as a journal keeps them.
void Give(const CString& from, const CString& to)
{
    const auto read = VyrHostPlatform::GetFolderTraits(from);
    ASSERT_TRUE(read);
    const auto traits = VyrHostPlatform::ParseFolderTraits(VyrHostPlatform::ToText(*read));
    ASSERT_EQ(traits, read);
    EXPECT_EQ(VyrHostPlatform::SetFolderExtras(to, *traits), 0u);
    EXPECT_EQ(VyrHostPlatform::SetFolderMode(to, *traits), 0u);
}

} // namespace

TEST(FolderTraitsOnLinux, PrivateFolderGivesAPrivateOne)
{
    const ScratchFolder scratch;
    const CString from = scratch.MakeFolder(u"from");
    for (const mode_t mode : {0700u, 0555u, 01777u, 02750u}) {
        ASSERT_EQ(chmod(BytesOf(from).c_str(), mode), 0);
        const CString to = scratch.MakeFolder(u"to");
        Give(from, to);
        EXPECT_EQ(StatusOf(to).st_mode & 07777, mode);
    }
}

TEST(FolderTraitsOnLinux, ExtendedAttributesAreCopied)
{
    const ScratchFolder scratch;
    const CString from = scratch.MakeFolder(u"from");
    if (setxattr(BytesOf(from).c_str(), "user.vyr: note", "\0:=\xFF", 4, 0) != 0)
        GTEST_SKIP() << "the file system keeps no extended attributes";
    const CString to = scratch.MakeFolder(u"to");
    Give(from, to);
    char buffer[8];
    ASSERT_EQ(getxattr(BytesOf(to).c_str(), "user.vyr: note", buffer, sizeof buffer), 4);
    EXPECT_EQ(std::string(buffer, 4), std::string("\0:=\xFF", 4));
}

TEST(FolderTraitsOnLinux, OwnerAndGroupAreCopiedOnlyByRoot)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may give folders away";
    const ScratchFolder scratch;
    const CString from = scratch.MakeFolder(u"from");
    const CString to = scratch.MakeFolder(u"to");
    ASSERT_EQ(chown(BytesOf(from).c_str(), 1234, 4321), 0);
    ASSERT_EQ(chmod(BytesOf(from).c_str(), 02755), 0);
    Give(from, to);
    EXPECT_EQ(StatusOf(to).st_uid, 1234u);
    EXPECT_EQ(StatusOf(to).st_gid, 4321u);
    EXPECT_EQ(StatusOf(to).st_mode & 07777, 02755u);
}

TEST(FolderTraitsOnLinux, SetIdBitsStayWithTheirOwner)
{
    const ScratchFolder scratch;
    const CString from = scratch.MakeFolder(u"from");
    const CString to = scratch.MakeFolder(u"to");
    if (geteuid() != 0 || chown(BytesOf(from).c_str(), 1234, 4321) != 0)
        GTEST_SKIP() << "only root may give folders away";
    ASSERT_EQ(chown(BytesOf(to).c_str(), 65534, 65534), 0);
    ASSERT_EQ(chmod(BytesOf(from).c_str(), 02755), 0);
    const VyrTests::Unprivileged nobody;
    ASSERT_TRUE(nobody.IsDone());
    Give(from, to);
    EXPECT_EQ(StatusOf(to).st_uid, 65534u);
    EXPECT_EQ(StatusOf(to).st_mode & 07777, 0755u);
}
