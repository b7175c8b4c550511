// The space for copies on Linux: it shrinks by what is written.
#include <VyrHostPlatform/FreeSpace.h>

#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>
#include <tests/support/linux/MountedFolder.h>

using VyrHostPlatform::GetSpaceForCopies;
using VyrTests::MountedFolder;
using VyrTests::ScratchFolder;

TEST(FreeSpaceLinux, ShrinksByWhatIsWritten)
{
    const ScratchFolder scratch;
    const MountedFolder disk(MountedFolder::Kind::Memory, "size=1m");
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    EXPECT_EQ(GetSpaceForCopies(scratch.Path(), disk.Path()), 1U << 20);
    std::ofstream(VyrTests::ToStdPath(disk.Path(u"file"))) << std::string(256 << 10, 'x');
    EXPECT_EQ(GetSpaceForCopies(scratch.Path(), disk.Path()), 768U << 10);
}
