// Full paths where the current folder is gone.
#include <VyrPlatform/files/FullPath.h>
#include <VyrPlatform/linux/files/Descriptor.h>

#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

TEST(FullPathLinux, RelativePathStaysAsItIsWhereTheCurrentFolderWasRemoved)
{
    const VyrTests::ScratchFolder scratch;
    const auto gone = VyrTests::ToStdPath(scratch.MakeFolder(u"gone"));
    const VyrPlatform::Descriptor before(open(".", O_PATH | O_DIRECTORY | O_CLOEXEC));
    ASSERT_EQ(chdir(gone.c_str()), 0);
    EXPECT_EQ(rmdir(gone.c_str()), 0);
    EXPECT_EQ(VyrPlatform::GetFullPath(u"etc"), u"etc");
    EXPECT_EQ(VyrPlatform::GetFullPath(u"."), u".");
    EXPECT_EQ(VyrPlatform::GetFullPath(u"/etc"), u"/etc");
    ASSERT_EQ(fchdir(before.Get()), 0);
}
