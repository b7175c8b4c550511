// Queries of files that only Linux has: links, devices, names that are not UTF-8.
#include <VyrLibraryUtils/FileUtils.h>

#include <tests/support/CurrentFolder.h>
#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

using VyrLibraryUtils::FileUtils;
using VyrTests::CurrentFolder;
using VyrTests::ScratchFolder;
using VyrTests::ToStdPath;

namespace {

TEST(FileUtilsOnLinux, CountsALinkThatLeadsNowhereAsExisting)
{
    const ScratchFolder scratch;
    std::filesystem::create_symlink("nowhere", ToStdPath(scratch.Path(u"link")));
    EXPECT_EQ(FileUtils::IsFileExist(scratch.Path(u"link")), 1);
    EXPECT_EQ(FileUtils::IsDirectory(scratch.Path(u"link")), 0);
}

TEST(FileUtilsOnLinux, FollowsNoLinkBelowAFolder)
{
    const ScratchFolder scratch;
    const ScratchFolder elsewhere;
    elsewhere.WriteFile(u"big", std::string(1000, 'x'));
    scratch.WriteFile(u"a", "12345");
    std::filesystem::create_directory_symlink(ToStdPath(elsewhere.Path()), ToStdPath(scratch.Path(u"folder")));
    std::filesystem::create_symlink(ToStdPath(elsewhere.Path(u"big")), ToStdPath(scratch.Path(u"file")));
    std::filesystem::create_directory_symlink(ToStdPath(scratch.Path()), ToStdPath(scratch.Path(u"loop")));
    EXPECT_EQ(FileUtils::GetFileSize(scratch.Path()), 5);
    EXPECT_EQ(FileUtils::GetFileSize(scratch.Path(u"file")), 1000);
}

TEST(FileUtilsOnLinux, SumsFoldersFiveHundredDeep)
{
    const ScratchFolder scratch;
    CString name = u"d";
    for (int depth = 0; depth < 500; ++depth)
        name += u"/d";
    scratch.WriteFile(name + u"/file", "12345");
    EXPECT_EQ(FileUtils::GetFileSize(scratch.Path()), 5);
}

TEST(FileUtilsOnLinux, FindsNamesThatAreNotUtf8)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"\xDCFF\xDC80/x\xDCE4.txt", "123");
    EXPECT_EQ(FileUtils::IsFileExist(path), 1);
    EXPECT_EQ(FileUtils::GetFileSize(path), 3);
    EXPECT_EQ(FileUtils::GetFileSize(scratch.Path()), 3);
}

TEST(FileUtilsOnLinux, SumsFoldersWhoseNamesLookLikeWindowsPaths)
{
    const ScratchFolder scratch;
    const CurrentFolder current(scratch.Path());
    for (const char16_t* const name : {u"C:\\d", u"\\\\server\\d", u"d\\"}) {
        scratch.WriteFile(CString(name) + u"/e/file", "12345");
        EXPECT_EQ(FileUtils::GetFileSize(name), 5) << VyrTests::ToStdPath(name);
    }
}

TEST(FileUtilsOnLinux, CountsNothingForADevice)
{
    EXPECT_EQ(FileUtils::IsFileExist(u"/dev/null"), 1);
    EXPECT_EQ(FileUtils::GetFileSize(u"/dev/null"), 0);
}

} // namespace
