// Paths that only Linux splits in this way.
#include <VyrLibraryUtils/FileUtils.h>

#include <tests/VyrLibraryUtils/SplitCase.h>

#include <gtest/gtest.h>

using VyrLibraryUtils::FileUtils;
using VyrTests::SplitCase;

namespace {

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
    for (const SplitCase& expected : splitCases)
        VyrTests::ExpectSplit(expected);
}

TEST(FileUtilsCombineOnLinux, KeepsABackslashAsAnOrdinaryCharacter)
{
    EXPECT_EQ(FileUtils::GetCombinePath(u"d\\", u"\\a"), u"d\\/\\a");
    EXPECT_EQ(FileUtils::GetCombinePath(u"d", u"a"), u"d/a");
}

} // namespace
