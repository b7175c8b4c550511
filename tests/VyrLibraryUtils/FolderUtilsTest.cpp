#include <VyrLibraryUtils/FolderUtils.h>
#include <VyrPlatform/files/FileSystem.h>

#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

using VyrLibraryUtils::FolderUtils;
using VyrTests::ScratchFolder;
namespace FileSystem = VyrPlatform::FileSystem;

namespace {

TEST(FolderUtils, CreatesEveryMissingParent)
{
    const ScratchFolder scratch;
    const CString path = scratch.Path(u"a/b b/\u00E4\u65E5/d");
    EXPECT_EQ(FolderUtils::CreateFolderPathExists(path), 1);
    EXPECT_TRUE(FileSystem::IsFolder(path));
}

TEST(FolderUtils, SucceedsForAnExistingFolder)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a/file", "kept");
    EXPECT_EQ(FolderUtils::CreateFolderPathExists(scratch.Path(u"a")), 1);
    EXPECT_EQ(FolderUtils::CreateFolderPathExists(scratch.Path()), 1);
    EXPECT_EQ(scratch.ReadFile(u"a/file"), "kept");
}

TEST(FolderUtils, TakesSeparatorsAtTheEndAndRunsOfThem)
{
    const ScratchFolder scratch;
    EXPECT_EQ(FolderUtils::CreateFolderPathExists(scratch.Path(u"a//b///c//")), 1);
    EXPECT_TRUE(FileSystem::IsFolder(scratch.Path(u"a/b/c")));
}

TEST(FolderUtils, ResolvesParentFolders)
{
    const ScratchFolder scratch;
    EXPECT_EQ(FolderUtils::CreateFolderPathExists(scratch.Path(u"a/b/../c/./d")), 1);
    EXPECT_TRUE(FileSystem::IsFolder(scratch.Path(u"a/c/d")));
}

TEST(FolderUtils, FailsWhereAFileIsInTheWayAndKeepsIt)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a", "kept");
    EXPECT_EQ(FolderUtils::CreateFolderPathExists(file), 0);
    EXPECT_EQ(FolderUtils::CreateFolderPathExists(scratch.Path(u"a/b/c")), 0);
    EXPECT_EQ(scratch.ReadFile(u"a"), "kept");
}

TEST(FolderUtils, RefusesNamesThatNoSystemTakes)
{
    const ScratchFolder scratch;
    EXPECT_EQ(FolderUtils::CreateFolderPathExists(u""), 0);
    EXPECT_EQ(FolderUtils::CreateFolderPathExists(scratch.Path(CString(u'x', 5000))), 0);
    CString deep = scratch.Path(u"deep");
    for (int i = 0; i < 500'000; ++i)
        deep += u"/x";
    EXPECT_EQ(FolderUtils::CreateFolderPathExists(deep), 0);
    EXPECT_FALSE(scratch.Has(u"deep"));
}

} // namespace
