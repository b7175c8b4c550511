// The traits of a folder are read from one and set on another.
#include <VyrHostPlatform/FolderTraits.h>

#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

using VyrHostPlatform::FolderTraits;
using VyrTests::ScratchFolder;

TEST(FolderTraits, AreNoneForFilesAndMissingFolders)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"file", "1");
    EXPECT_FALSE(VyrHostPlatform::GetFolderTraits(file));
    EXPECT_FALSE(VyrHostPlatform::GetFolderTraits(scratch.Path(u"missing")));
    EXPECT_FALSE(VyrHostPlatform::GetFolderTraits(CString()));
}

TEST(FolderTraits, AreCopiedFromOneFolderToAnother)
{
    const ScratchFolder scratch;
    const std::optional<FolderTraits> traits = VyrHostPlatform::GetFolderTraits(scratch.MakeFolder(u"from"));
    ASSERT_TRUE(traits);
    const CString to = scratch.MakeFolder(u"to");
    EXPECT_EQ(VyrHostPlatform::SetFolderExtras(to, *traits), 0u);
    EXPECT_EQ(VyrHostPlatform::SetFolderMode(to, *traits), 0u);
    const std::optional<FolderTraits> given = VyrHostPlatform::GetFolderTraits(to);
    ASSERT_TRUE(given);
    EXPECT_EQ(given->mode, traits->mode);
    EXPECT_EQ(given->owner, traits->owner);
    EXPECT_EQ(given->group, traits->group);
    EXPECT_EQ(given->extended, traits->extended);
}

TEST(FolderTraits, MissingFolderTakesNoMode)
{
    const ScratchFolder scratch;
    const std::optional<FolderTraits> traits = VyrHostPlatform::GetFolderTraits(scratch.MakeFolder(u"from"));
    ASSERT_TRUE(traits);
    EXPECT_NE(VyrHostPlatform::SetFolderMode(scratch.Path(u"missing"), *traits), 0u);
    EXPECT_FALSE(scratch.Has(u"missing"));
}
