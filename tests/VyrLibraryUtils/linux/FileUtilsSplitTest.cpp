// Paths as Linux alone cuts them.
#include <VyrLibraryUtils/FileUtils.h>

#include <tests/support/Describe.h>

#include <gtest/gtest.h>

using VyrLibraryUtils::FileUtils;

namespace {

struct SplitCase
{
    CString path;
    CString folder;
    CString stem;
    CString extension;
    CString root;
};

const SplitCase splitCases[] = {
    {u"C:a.b", u"", u"C:a", u".b", u""},
    {u"C:", u"", u"C:", u"", u""},
    {u"d\\a.b", u"", u"d\\a", u".b", u""},
    {u"/d/e\\a.b", u"/d/", u"e\\a", u".b", u"/"},
    {u"\\a.b", u"", u"\\a", u".b", u""},
    {u"/C:\\a.b", u"/", u"C:\\a", u".b", u"/"},
    {u"//d/a.b", u"//d/", u"a", u".b", u"//"},
    {u"1:\\a.b", u"", u"1:\\a", u".b", u""},
    {u"/\xDC80\xDCFF.\xDCFF", u"/", u"\xDC80\xDCFF", u".\xDCFF", u"/"},
};

TEST(FileUtilsSplitOnLinux, CutsEachPathOfTheTable)
{
    for (const SplitCase& expected : splitCases) {
        SCOPED_TRACE(testing::PrintToString(expected.path));
        EXPECT_EQ(FileUtils::GetSplitDirPath(expected.path), expected.folder);
        EXPECT_EQ(FileUtils::GetSplitFName(expected.path), expected.stem);
        EXPECT_EQ(FileUtils::GetSplitExtension(expected.path, 1), expected.extension);
        EXPECT_EQ(FileUtils::GetSplitFileName(expected.path), expected.stem + expected.extension);
        EXPECT_EQ(FileUtils::GetSplitPath(expected.path, 1), expected.root);
    }
}

TEST(FileUtilsCombineOnLinux, KeepsABackslashAsAnOrdinaryCharacter)
{
    EXPECT_EQ(FileUtils::GetCombinePath(u"d\\", u"\\a"), u"d\\/\\a");
    EXPECT_EQ(FileUtils::GetCombinePath(u"d", u"a"), u"d/a");
}

} // namespace
