// Paths as Windows alone cuts them.
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
    {u"C:a.b", u"C:", u"a", u".b", u"C:"},
    {u"C:", u"C:", u"", u"", u"C:"},
    {u"C:d\\a.b", u"C:d\\", u"a", u".b", u"C:"},
    {u"d\\a.b", u"d\\", u"a", u".b", u""},
    {u"\\a.b", u"\\", u"a", u".b", u"\\"},
    {u"d.x\\file", u"d.x\\", u"file", u"", u""},
    {u"//server/share/a.b", u"//server/share/", u"a", u".b", u"//server/share/"},
    {u"1:\\a.b", u"1:\\", u"a", u".b", u""},
};

TEST(FileUtilsSplitOnWindows, CutsEachPathOfTheTable)
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

TEST(FileUtilsCombineOnWindows, TakesTheFoldersOwnSeparatorElseABackslash)
{
    EXPECT_EQ(FileUtils::GetCombinePath(u"d", u"a"), u"d\\a");
    EXPECT_EQ(FileUtils::GetCombinePath(u"d\\", u"\\a"), u"d\\a");
    EXPECT_EQ(FileUtils::GetCombinePath(u"d/", u"\\a"), u"d/a");
}

} // namespace
