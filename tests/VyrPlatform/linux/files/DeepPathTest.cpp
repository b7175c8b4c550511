// Paths that are longer than Linux takes in one call.
#include <VyrPlatform/files/DeepWalk.h>
#include <VyrPlatform/files/FileCopy.h>
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/files/FolderListing.h>
#include <VyrPlatform/files/WorkingFolder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <climits>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

using namespace VyrPlatform;
using VyrTests::ScratchFolder;

namespace {

/// Makes folders, each in the one before, until the path of the last has at least `length` bytes.
/// @return their paths.
std::vector<CString> MakeDeepFolders(const ScratchFolder& scratch, int length)
{
    std::vector<CString> folders{scratch.Path()};
    while (folders.back().GetLength() < length) {
        folders.push_back(folders.back() + u"/" + CString(u'd', 120));
        EXPECT_EQ(FileSystem::CreateFolder(folders.back()), 0U);
    }
    return folders;
}

void UseDeepFolder(const ScratchFolder& scratch)
{
    const std::vector<CString> folders = MakeDeepFolders(scratch, 3 * PATH_MAX);
    const CString& folder = folders.back();
    EXPECT_TRUE(FileSystem::IsFolder(folder));
    EXPECT_FALSE(FileSystem::Exists(folder + u"/missing"));
    EXPECT_FALSE(FileSystem::Exists(folder.Left(2 * PATH_MAX) + u"x/missing"));
    ASSERT_EQ(FileCopy::Copy(scratch.WriteFile(u"a", "content"), folder + u"/a"), 0U);
    EXPECT_EQ(FileReader(folder + u"/a").Size(), 7U);
    EXPECT_TRUE(FileTimes::GetCreated(folder + u"/a"));
    EXPECT_EQ(FileCopy::Move(folder + u"/a", folder + u"/b"), 0U);
    FolderListing listing(folder);
    ASSERT_TRUE(listing.Next());
    EXPECT_EQ(listing.Name(), u"b");
    EXPECT_FALSE(listing.Next());
    EXPECT_EQ(FileCopy::Move(folder + u"/b", scratch.Path(u"b")), 0U);
    EXPECT_EQ(scratch.ReadFile(u"b"), "content");
    for (auto last = folders.rbegin(); last + 1 != folders.rend(); ++last)
        EXPECT_EQ(FileCopy::RemoveEmptyFolder(*last), 0U);
}

} // namespace

TEST(DeepPath, FilesAreReachedAtAnyDepth)
{
    UseDeepFolder(ScratchFolder());
}

TEST(DeepPath, FilesAreReachedAtAnyDepthInAWalk)
{
    const ScratchFolder scratch;
    const DeepWalk walk;
    UseDeepFolder(scratch);
    EXPECT_EQ(FileSystem::CreateFolder(scratch.Path(u"after")), 0U);
}

TEST(DeepPath, RecreatedFoldersAreFoundAfterAWalk)
{
    const ScratchFolder scratch;
    std::optional<DeepWalk> walk(std::in_place);
    UseDeepFolder(scratch);
    walk.reset();
    UseDeepFolder(scratch);
}

TEST(DeepPath, WalkKeepsItsFoldersThroughAWalkWithinIt)
{
    const ScratchFolder scratch;
    const CString deepest = MakeDeepFolders(scratch, 2 * PATH_MAX).back();
    const DeepWalk walk;
    ASSERT_TRUE(FileSystem::IsFolder(deepest));
    {
        const DeepWalk inner;
        ASSERT_TRUE(FileSystem::IsFolder(deepest));
    }
    const std::filesystem::path root = VyrTests::ToStdPath(scratch.Path());
    std::filesystem::rename(root / std::string(120, 'd'), root / "renamed");
    EXPECT_TRUE(FileSystem::IsFolder(deepest)) << "an open folder keeps its old path";
}

TEST(DeepPath, FilesAreReadWhereADeepFolderIsTheWorkingFolder)
{
    const ScratchFolder scratch;
    const std::vector<CString> folders = MakeDeepFolders(scratch, 2 * PATH_MAX);
    const CString folder = folders.back() + u"/";
    ASSERT_EQ(FileCopy::Copy(scratch.WriteFile(u"a", "content"), folder + u"a"), 0U);
    WorkingFolder working;
    working.Enter(folder);
    EXPECT_EQ(FileReader(folder + u"a").Size(), 7U);
    EXPECT_EQ(FileReader(scratch.Path(u"a")).Size(), 7U);
    ASSERT_EQ(FileCopy::Move(folder + u"a", scratch.Path(u"b")), 0U);
    for (auto last = folders.rbegin(); last + 1 != folders.rend(); ++last)
        EXPECT_EQ(FileCopy::RemoveEmptyFolder(*last), 0U);
}
