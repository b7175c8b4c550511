// Splitting and joining paths on both systems. The folders of the systems have the differences.
#include <VyrLibraryUtils/FileUtils.h>

#include <tests/VyrLibraryUtils/SplitCase.h>
#include <tests/support/Describe.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>
#include <random>

using VyrLibraryUtils::FileUtils;
using VyrTests::SplitCase;

namespace {

const SplitCase splitCases[] = {
    {u"", u"", u"", u"", u""},
    {u"a", u"", u"a", u"", u""},
    {u"a.b", u"", u"a", u".b", u""},
    {u"a.b.c", u"", u"a.b", u".c", u""},
    {u"a.", u"", u"a", u".", u""},
    {u"a..", u"", u"a.", u".", u""},
    {u".bashrc", u"", u".bashrc", u"", u""},
    {u".bashrc.bak", u"", u".bashrc", u".bak", u""},
    {u".", u"", u".", u"", u""},
    {u"..", u"", u"..", u"", u""},
    {u"..a", u"", u"..a", u"", u""},
    {u"..a.b", u"", u"..a", u".b", u""},
    {u"d.x/file", u"d.x/", u"file", u"", u""},
    {u"d/.x", u"d/", u".x", u"", u""},
    {u"d/a.b/", u"d/a.b/", u"", u"", u""},
    {u"/", u"/", u"", u"", u"/"},
    {u"/a", u"/", u"a", u"", u"/"},
    {u"/d/a.tar.gz", u"/d/", u"a.tar", u".gz", u"/"},
    {u"d//a.b", u"d//", u"a", u".b", u""},
    {u"d/\u00E4\U0001F600.\u65E5", u"d/", u"\u00E4\U0001F600", u".\u65E5", u""},
    // Windows paths, on both systems.
    {u"C:\\a\\b.c", u"C:\\a\\", u"b", u".c", u"C:\\"},
    {u"c:\\a.b\\", u"c:\\a.b\\", u"", u"", u"c:\\"},
    {u"C:/a\\b.c", u"C:/a\\", u"b", u".c", u"C:/"},
    {u"C:\\", u"C:\\", u"", u"", u"C:\\"},
    {u"\\\\server\\share\\d\\a.b", u"\\\\server\\share\\d\\", u"a", u".b", u"\\\\server\\share\\"},
    {u"\\\\server\\share\\a", u"\\\\server\\share\\", u"a", u"", u"\\\\server\\share\\"},
    {u"\\\\server\\share", u"\\\\server\\", u"share", u"", u"\\\\server\\share"},
    {u"\\\\?\\C:\\d\\a.b", u"\\\\?\\C:\\d\\", u"a", u".b", u"\\\\?\\C:\\"},
    {u"\\\\?\\UNC\\server\\share\\a.b", u"\\\\?\\UNC\\server\\share\\", u"a", u".b", u"\\\\?\\UNC\\server\\share\\"},
};

TEST(FileUtilsSplit, CutsEachPathOfTheTable)
{
    for (const SplitCase& expected : splitCases)
        VyrTests::ExpectSplit(expected);
}

TEST(FileUtilsSplit, SelectsThePartByItsNumber)
{
    for (const SplitCase& expected : splitCases) {
        SCOPED_TRACE(testing::PrintToString(expected.path));
        EXPECT_EQ(FileUtils::GetSplitPath(expected.path, 0), expected.path);
        EXPECT_EQ(FileUtils::GetSplitPath(expected.path, 1), expected.root);
        EXPECT_EQ(FileUtils::GetSplitPath(expected.path, 2), expected.folder);
        EXPECT_EQ(FileUtils::GetSplitPath(expected.path, 3), expected.stem + expected.extension);
        EXPECT_EQ(FileUtils::GetSplitPath(expected.path, 4), expected.extension);
        EXPECT_EQ(FileUtils::GetSplitPath(expected.path, 5), expected.stem);
    }
}

TEST(FileUtilsSplit, GivesNothingForAnUnknownSelector)
{
    for (const int selector : {-1, 6, 1000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(FileUtils::GetSplitPath(u"/d/a.b", selector), u"");
}

TEST(FileUtilsSplit, GivesTheExtensionWithItsDotOnlyForOne)
{
    EXPECT_EQ(FileUtils::GetSplitExtension(u"a.jpg", 1), u".jpg");
    EXPECT_EQ(FileUtils::GetSplitExtension(u"a.jpg", 0), u"jpg");
    EXPECT_EQ(FileUtils::GetSplitExtension(u"a.jpg", 2), u"jpg");
    EXPECT_EQ(FileUtils::GetSplitExtension(u"a.jpg", -1), u"jpg");
    EXPECT_EQ(FileUtils::GetSplitExtension(u"a", 0), u"");
    EXPECT_EQ(FileUtils::GetSplitExtension(u"a.", 0), u"");
}

/// Texts of the units that matter to a cut, lone surrogates included.
class RandomTexts
{
public:
    CString Next()
    {
        static constexpr std::u16string_view units = u"////\\\\...::CaZ9 ?\u00E9\xDC80\xD800";
        CString text;
        for (auto length = m_random() % 12; length > 0; --length)
            text += units[m_random() % units.size()];
        return text;
    }

private:
    std::mt19937 m_random{20240315};
};

TEST(FileUtilsSplit, PartsRebuildEveryText)
{
    RandomTexts texts;
    for (int i = 0; i < 200'000; ++i) {
        const CString path = texts.Next();
        const CString folder = FileUtils::GetSplitDirPath(path);
        const CString stem = FileUtils::GetSplitFName(path);
        const CString extension = FileUtils::GetSplitExtension(path, 1);
        ASSERT_EQ(folder + stem + extension, path);
        ASSERT_EQ(FileUtils::GetSplitFileName(path), stem + extension) << testing::PrintToString(path);
        ASSERT_TRUE(path.View().starts_with(FileUtils::GetSplitPath(path, 1))) << testing::PrintToString(path);
        ASSERT_TRUE(stem.IsEmpty() || stem.View().find(u'/') == stem.View().npos) << testing::PrintToString(path);
        ASSERT_EQ(extension.View().find_first_of(u"/", 0), extension.View().npos) << testing::PrintToString(path);
        ASSERT_LE(extension.View().rfind(u'.') + 1, 1U) << testing::PrintToString(path);
    }
}

/// Whether the standard library cuts `path` by the same rules: its root names and its rule for several leading dots
/// differ, on Linux it knows no Windows paths, and a lone surrogate that stands for no byte does not come back from it.
bool IsCutAlikeByTheStandardLibrary(const CString& path)
{
    const std::u16string_view text = path;
    const bool startsTwice =
        text.size() >= 2 && (text[0] == u'\\' || text[0] == u'/') && (text[1] == u'\\' || text[1] == u'/');
    const bool hasDrive = text.size() >= 2 && text[1] == u':';
    return !startsTwice && !hasDrive && text.find(u"..") == text.npos && text.find(u'\xD800') == text.npos;
}

TEST(FileUtilsSplit, AgreesWithTheStandardLibraryWhereTheRulesAreTheSame)
{
    RandomTexts texts;
    int compared = 0;
    for (int i = 0; i < 100'000; ++i) {
        const CString path = texts.Next();
        if (!IsCutAlikeByTheStandardLibrary(path))
            continue;
        ++compared;
        const std::filesystem::path expected = VyrTests::ToStdPath(path);
        ASSERT_EQ(FileUtils::GetSplitFileName(path), VyrTests::FromStdPath(expected.filename()))
            << testing::PrintToString(path);
        ASSERT_EQ(FileUtils::GetSplitFName(path), VyrTests::FromStdPath(expected.stem()))
            << testing::PrintToString(path);
        ASSERT_EQ(FileUtils::GetSplitExtension(path, 1), VyrTests::FromStdPath(expected.extension()))
            << testing::PrintToString(path);
    }
    EXPECT_GT(compared, 10'000);
}

struct CombineCase
{
    CString folder;
    CString relative;
    CString combined;
};

const CombineCase combineCases[] = {
    {u"C:\\d", u"a.b", u"C:\\d\\a.b"},
    {u"C:\\d\\", u"a.b", u"C:\\d\\a.b"},
    {u"C:\\d", u"\\a.b", u"C:\\d\\a.b"},
    {u"C:\\d\\\\", u"\\/a.b", u"C:\\d\\a.b"},
    {u"C:\\", u"a\\b", u"C:\\a\\b"},
    {u"C:/d", u"a", u"C:/d/a"},
    {u"\\\\server\\share", u"a", u"\\\\server\\share\\a"},
    {u"/d", u"a", u"/d/a"},
    {u"/d/", u"/a", u"/d/a"},
    {u"/d//", u"///a/", u"/d/a/"},
    {u"/", u"a", u"/a"},
    {u"", u"a", u"a"},
    {u"", u"/a", u"/a"},
    {u"/d", u"", u"/d"},
    {u"/d/", u"", u"/d/"},
    {u"", u"", u""},
    {u"/d", u"/", u"/d/"},
};

TEST(FileUtilsCombine, JoinsByExactlyOneSeparatorOfTheFoldersOwnStyle)
{
    for (const CombineCase& expected : combineCases)
        EXPECT_EQ(FileUtils::GetCombinePath(expected.folder, expected.relative), expected.combined);
}

TEST(FileUtilsCombine, UndoesTheSplitOfAPath)
{
    for (const SplitCase& split : splitCases)
        if (!split.stem.IsEmpty() && !split.folder.IsEmpty() && !split.folder.View().ends_with(u"//")) {
            EXPECT_EQ(FileUtils::GetCombinePath(split.folder, split.stem + split.extension), split.path);
        }
}

TEST(FileUtilsSplit, TakesTimeInProportionToHostileLengths)
{
    // Quadratic work on a million units would take minutes.
    const int length = 1'000'000;
    for (const char16_t unit : {u'/', u'\\', u'.', u'a'}) {
        const CString path(unit, length);
        const CString rebuilt = FileUtils::GetSplitDirPath(path) + FileUtils::GetSplitFileName(path);
        EXPECT_EQ(rebuilt.GetLength(), length);
        EXPECT_LE(FileUtils::GetSplitPath(path, 1).GetLength(), length);
        EXPECT_LE(FileUtils::GetCombinePath(path, path).GetLength(), 2 * length + 1);
    }
}

} // namespace
