// What is taken of a folder to be given to another one.
#include <VyrPlatform/FolderTraits.h>

#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

using VyrPlatform::FolderTraits;
using VyrTests::ScratchFolder;

TEST(FolderTraits, ThereAreNoneOfWhatIsNoFolder)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"file", "1");
    EXPECT_FALSE(VyrPlatform::GetFolderTraits(file));
    EXPECT_FALSE(VyrPlatform::GetFolderTraits(scratch.Path(u"missing")));
    EXPECT_FALSE(VyrPlatform::GetFolderTraits(CString()));
}

TEST(FolderTraits, ThoseOfOneFolderAreGivenToAnother)
{
    const ScratchFolder scratch;
    const std::optional<FolderTraits> traits = VyrPlatform::GetFolderTraits(scratch.MakeFolder(u"from"));
    ASSERT_TRUE(traits);
    const CString to = scratch.MakeFolder(u"to");
    EXPECT_EQ(VyrPlatform::SetFolderExtras(to, *traits), 0u);
    EXPECT_EQ(VyrPlatform::SetFolderMode(to, *traits), 0u);
    const std::optional<FolderTraits> given = VyrPlatform::GetFolderTraits(to);
    ASSERT_TRUE(given);
    EXPECT_EQ(given->mode, traits->mode);
    EXPECT_EQ(given->owner, traits->owner);
    EXPECT_EQ(given->group, traits->group);
    EXPECT_EQ(given->extended, traits->extended);
}

TEST(FolderTraits, MissingFolderTakesNoMode)
{
    const ScratchFolder scratch;
    const std::optional<FolderTraits> traits = VyrPlatform::GetFolderTraits(scratch.MakeFolder(u"from"));
    ASSERT_TRUE(traits);
    EXPECT_NE(VyrPlatform::SetFolderMode(scratch.Path(u"missing"), *traits), 0u);
    EXPECT_FALSE(scratch.Has(u"missing"));
}
