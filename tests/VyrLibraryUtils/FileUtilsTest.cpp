// Queries of real files.
#include <VyrLibraryUtils/FileUtils.h>

#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

using VyrLibraryUtils::FileUtils;
using VyrTests::ScratchFolder;

namespace {

TEST(FileUtils, FindsFilesAndFoldersAndNothingElse)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"\u00E4 \u65E5\U0001F600.txt");
    EXPECT_EQ(FileUtils::IsFileExist(file), 1);
    EXPECT_EQ(FileUtils::IsFileExist(scratch.Path()), 1);
    EXPECT_EQ(FileUtils::IsFileExist(scratch.Path(u"missing")), 0);
    EXPECT_EQ(FileUtils::IsFileExist(scratch.Path(u"missing/file")), 0);
    EXPECT_EQ(FileUtils::IsFileExist(u""), 0);
}

TEST(FileUtils, DistinguishesFoldersAndFiles)
{
    const ScratchFolder scratch;
    EXPECT_EQ(FileUtils::IsDirectory(scratch.Path()), 1);
    EXPECT_EQ(FileUtils::IsDirectory(scratch.WriteFile(u"a")), 0);
    EXPECT_EQ(FileUtils::IsDirectory(scratch.Path(u"missing")), 0);
    EXPECT_EQ(FileUtils::IsDirectory(u""), 0);
}

TEST(FileUtils, RecognisesReadOnlyFiles)
{
    namespace fs = std::filesystem;
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a");
    EXPECT_EQ(FileUtils::IsReadOnly(file), 0);
    fs::permissions(VyrTests::ToStdPath(file),
                    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    EXPECT_EQ(FileUtils::IsReadOnly(file), 1);
    EXPECT_EQ(FileUtils::IsReadOnly(scratch.Path(u"missing")), 0);
}

TEST(FileUtils, RemovesTheMarkOfADownloadOnce)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a.txt", "content");
    scratch.WriteFile(u"a.txt:Zone.Identifier", "[ZoneTransfer]\r\nZoneId=3\r\n");
    EXPECT_EQ(FileUtils::DeleteZoneId(file), 1);
    EXPECT_FALSE(scratch.Has(u"a.txt:Zone.Identifier"));
    EXPECT_EQ(scratch.ReadFile(u"a.txt"), "content");
    EXPECT_EQ(FileUtils::DeleteZoneId(file), 0);
    EXPECT_EQ(FileUtils::DeleteZoneId(scratch.Path(u"missing")), 0);
}

TEST(FileUtilsSize, OfAFileIsItsBytes)
{
    const ScratchFolder scratch;
    EXPECT_EQ(FileUtils::GetFileSize(scratch.WriteFile(u"empty")), 0);
    EXPECT_EQ(FileUtils::GetFileSize(scratch.WriteFile(u"a", std::string(12345, 'x'))), 12345);
}

TEST(FileUtilsSize, OfAFolderIsTheSumBelowIt)
{
    const ScratchFolder scratch;
    EXPECT_EQ(FileUtils::GetFileSize(scratch.Path()), 0);
    scratch.WriteFile(u"a", std::string(1, 'x'));
    scratch.WriteFile(u"b/c", std::string(20, 'x'));
    scratch.WriteFile(u"b/d/e", std::string(300, 'x'));
    scratch.MakeFolder(u"f");
    EXPECT_EQ(FileUtils::GetFileSize(scratch.Path()), 321);
    EXPECT_EQ(FileUtils::GetFileSize(scratch.Path(u"b")), 320);
    EXPECT_EQ(FileUtils::GetFileSize(scratch.Path(u"b/")), 320);
}

TEST(FileUtilsSize, OfAMissingFileIsMinusOne)
{
    const ScratchFolder scratch;
    EXPECT_EQ(FileUtils::GetFileSize(scratch.Path(u"missing")), -1);
    EXPECT_EQ(FileUtils::GetFileSize(u""), -1);
}

TEST(FileUtilsProgram, NamesTheRunningProgram)
{
    const CString path = FileUtils::GetModuleFilePath();
    EXPECT_EQ(FileUtils::IsFileExist(path), 1);
    EXPECT_EQ(FileUtils::IsDirectory(path), 0);
    EXPECT_EQ(FileUtils::GetSplitPath(path, 5), u"VyrLibraryUtilsTests");
    EXPECT_EQ(FileUtils::GetAppFileName(), FileUtils::GetSplitFileName(path));
}

TEST(FileUtilsProgram, PutsANameIntoTheSystemsFolder)
{
    const CString path = FileUtils::GetSystemFilePath(u"control.exe");
    EXPECT_EQ(FileUtils::GetSplitFileName(path), u"control.exe");
    EXPECT_EQ(FileUtils::IsDirectory(FileUtils::GetSplitDirPath(path)), 1);
    EXPECT_NE(FileUtils::GetSplitPath(path, 1), u"");
    EXPECT_EQ(FileUtils::GetSystemFilePath(u""), u"");
}

TEST(FileUtilsProgram, NamesTheFolderOfBuiltInAppsWithoutASeparatorAtItsEnd)
{
    const CString path = FileUtils::GetWindowsSystemAppsDirectoryPath();
    EXPECT_NE(FileUtils::GetSplitPath(path, 1), u"");
    EXPECT_NE(FileUtils::GetSplitFileName(path), u"");
}

} // namespace
