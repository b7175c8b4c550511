// Permissions for the names in a folder: what holds on both systems.
#include <VyrHostPlatform/FolderPermission.h>

#include <gtest/gtest.h>
#include <tests/support/ScratchFolder.h>

using VyrHostPlatform::GetFolderPermission;
using VyrHostPlatform::IsOwnEntry;
using VyrTests::ScratchFolder;

TEST(FolderPermission, NamesInTheUsersOwnFolderMayChange)
{
    const ScratchFolder scratch;
    EXPECT_EQ(GetFolderPermission(scratch.Path()).error, 0U);
    EXPECT_FALSE(GetFolderPermission(scratch.Path()).ownEntriesOnly);
    EXPECT_TRUE(IsOwnEntry(scratch.WriteFile(u"a")));
}

TEST(FolderPermission, IsRefusedForAMissingFolder)
{
    const ScratchFolder scratch;
    EXPECT_NE(GetFolderPermission(scratch.Path(u"missing")).error, 0U);
}
