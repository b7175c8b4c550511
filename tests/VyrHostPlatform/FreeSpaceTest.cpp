// The space for copies: what holds on both systems.
#include <VyrHostPlatform/FreeSpace.h>

#include <filesystem>
#include <gtest/gtest.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

using VyrHostPlatform::GetSpaceForCopies;
using VyrTests::ScratchFolder;

TEST(FreeSpace, IsAtMostWhatTheFileSystemHas)
{
    const ScratchFolder scratch;
    const auto space = GetSpaceForCopies(scratch.Path(), scratch.Path());
    if (!space)
        GTEST_SKIP() << "copies share storage here, or the file system does not tell";
    EXPECT_GT(*space, 0U);
    EXPECT_LE(*space, std::filesystem::space(VyrTests::ToStdPath(scratch.Path())).capacity);
}

TEST(FreeSpace, OfAFolderThatIsNotThereIsNotKnown)
{
    const ScratchFolder scratch;
    EXPECT_EQ(GetSpaceForCopies(scratch.Path(), scratch.Path(u"missing")), std::nullopt);
}
