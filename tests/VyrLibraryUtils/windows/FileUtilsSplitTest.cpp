// Paths that only Windows splits in this way.
#include <VyrLibraryUtils/FileUtils.h>

#include <tests/VyrLibraryUtils/SplitCase.h>

#include <gtest/gtest.h>

using VyrLibraryUtils::FileUtils;
using VyrTests::SplitCase;

namespace {

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
    for (const SplitCase& expected : splitCases)
        VyrTests::ExpectSplit(expected);
}

TEST(FileUtilsCombineOnWindows, TakesTheFoldersOwnSeparatorElseABackslash)
{
    EXPECT_EQ(FileUtils::GetCombinePath(u"d", u"a"), u"d\\a");
    EXPECT_EQ(FileUtils::GetCombinePath(u"d\\", u"\\a"), u"d\\a");
    EXPECT_EQ(FileUtils::GetCombinePath(u"d/", u"\\a"), u"d/a");
}

} // namespace
