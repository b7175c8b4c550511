// NameFolding on file systems of other kinds.
#include <tests/support/StdPath.h>
#include <tests/support/linux/MountedFolder.h>

#include <VyrHostPlatform/NameFolding.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

using namespace VyrHostPlatform;
using VyrTests::MountedFolder;
using VyrTests::ToStdPath;

void Make(const MountedFolder& disk, std::u16string_view name)
{
    std::ofstream(ToStdPath(disk.Path(name))).close();
}

TEST(NameFoldingOnLinux, IsTriedOnTheEntriesWhereTheFileSystemDoesNotReportIt)
{
    const MountedFolder disk(MountedFolder::Kind::Exfat);
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    Make(disk, u"123");
    EXPECT_EQ(GetNameFolding(disk.Path()), NameFolding::None) << "nothing has a case there";
    Make(disk, u"Name");
    EXPECT_EQ(GetNameFolding(disk.Path()), NameFolding::Case);
}

TEST(NameFoldingOnLinux, IsNoneWhereBothCasesAreEntriesOfTheirOwn)
{
    const MountedFolder disk(MountedFolder::Kind::PassedThrough);
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    Make(disk, u"name");
    EXPECT_EQ(GetNameFolding(disk.Path()), NameFolding::None);
    Make(disk, u"NAME");
    std::filesystem::create_hard_link(ToStdPath(disk.Path(u"name")), ToStdPath(disk.Path(u"Other")));
    std::filesystem::create_hard_link(ToStdPath(disk.Path(u"name")), ToStdPath(disk.Path(u"oTHER")));
    EXPECT_EQ(GetNameFolding(disk.Path()), NameFolding::None);
}

TEST(NameFoldingOnLinux, OfTwoNamesIsTriedInAnEmptyFolder)
{
    const MountedFolder disk(MountedFolder::Kind::Exfat);
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    EXPECT_TRUE(VyrHostPlatform::TryIsOneName(disk.Path(), u"readme", u"README"));
    EXPECT_FALSE(VyrHostPlatform::TryIsOneName(disk.Path(), u"readme", u"readme2"));
    EXPECT_TRUE(std::filesystem::is_empty(ToStdPath(disk.Path())));
}

} // namespace
