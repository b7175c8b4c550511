// The state of a folder on Linux: mode and extended attributes.
#include <VyrHostPlatform/FolderState.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <sys/stat.h>
#include <sys/xattr.h>

using namespace VyrHostPlatform;
using VyrTests::ScratchFolder;
using VyrTests::ToStdPath;

TEST(FolderStateOnLinux, HasTheModeAndTheExtendedAttributes)
{
    const ScratchFolder scratch;
    const std::string old = ToStdPath(scratch.MakeFolder(u"old")).string();
    const std::string made = ToStdPath(scratch.MakeFolder(u"new")).string();
    ASSERT_EQ(chmod(old.c_str(), 01510), 0);
    // Bytes of any kind.
    if (setxattr(old.c_str(), "user.vyr: test", "\0:=\xFF", 4, 0) != 0)
        GTEST_SKIP() << "the file system has no extended attributes";
    std::uint32_t error = 0;
    const auto state = ReadFolderState(scratch.Path(u"old"), error);
    ASSERT_TRUE(state);
    EXPECT_EQ(RestoreFolderState(scratch.Path(u"new"), *state), 0U);

    struct stat status;
    ASSERT_EQ(stat(made.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 01510U);
    char value[16];
    ASSERT_EQ(getxattr(made.c_str(), "user.vyr: test", value, sizeof value), 4);
    EXPECT_EQ(std::string(value, 4), std::string("\0:=\xFF", 4));
}
