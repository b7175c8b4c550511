// The companion's promises to its callers, each tested by itself: paths, files, folders, text, numbers, versions.
#include <VyrLibraryUtils/CompareUtils.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/FolderUtils.h>
#include <VyrLibraryUtils/ImageUtils.h>
#include <VyrLibraryUtils/LogUtils.h>
#include <VyrLibraryUtils/PathUtils.h>
#include <VyrLibraryUtils/PropertyUtils.h>
#include <VyrLibraryUtils/RegexUtils.h>
#include <VyrLibraryUtils/StringUtils.h>
#include <VyrLibraryUtils/VersionUtils.h>
#include <VyrPlatform/files/FileSystem.h>

#include <tests/support/Describe.h>
#include <tests/support/FileState.h>
#include <tests/support/Links.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/UserLocale.h>

#include <climits>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <utility>
#include <vector>

using namespace VyrLibraryUtils;
using VyrTests::ScratchFolder;
using VyrTests::UserLocale;

namespace {

const std::vector<int> extremes = {INT_MIN, INT_MIN + 1, -1, INT_MAX - 1, INT_MAX};

bool EndsWith(const CString& text, std::u16string_view end)
{
    return text.View().ends_with(end);
}

/// A text without its blanks, commas, points and letters.
std::u16string DigitsOf(const CString& text)
{
    std::u16string digits;
    for (const char16_t unit : text.View())
        if (unit >= u'0' && unit <= u'9')
            digits += unit;
    return digits;
}

struct Cut
{
    const char16_t* path;
    const char16_t* folder;
    const char16_t* name;
    const char16_t* extension;
};

const std::vector<Cut> cuts = {
    {u"", u"", u"", u""},
    {u"a", u"", u"a", u""},
    {u"a.b.c", u"", u"a.b", u".c"},
    {u"a.", u"", u"a", u"."},
    {u"a..", u"", u"a.", u"."},
    {u".bashrc", u"", u".bashrc", u""},
    {u".bashrc.old", u"", u".bashrc", u".old"},
    {u"..a", u"", u"..a", u""},
    {u"..a.b", u"", u"..a", u".b"},
    {u"/d.x/file", u"/d.x/", u"file", u""},
    {u"d.x/file", u"d.x/", u"file", u""},
    {u"/d.x/.hidden", u"/d.x/", u".hidden", u""},
    {u"/d/e.f/", u"/d/e.f/", u"", u""},
    {u"/", u"/", u"", u""},
    {u"/a.jpeg", u"/", u"a", u".jpeg"},
    {u"C:\\a\\b.c", u"C:\\a\\", u"b", u".c"},
    {u"C:\\a/b.c", u"C:\\a/", u"b", u".c"},
    {u"C:/a\\b.c", u"C:/a\\", u"b", u".c"},
    {u"C:\\b.c", u"C:\\", u"b", u".c"},
    {u"C:\\a.b\\", u"C:\\a.b\\", u"", u""},
    {u"\\\\server\\share\\a.b", u"\\\\server\\share\\", u"a", u".b"},
    {u"/x/na me .jpg ", u"/x/", u"na me ", u".jpg "},
};

} // namespace

// Paths

TEST(CompanionContract, PathsAreCutIntoFolderNameAndExtension)
{
    for (const Cut& cut : cuts) {
        SCOPED_TRACE(testing::PrintToString(CString(cut.path)));
        EXPECT_EQ(FileUtils::GetSplitDirPath(cut.path), CString(cut.folder));
        EXPECT_EQ(FileUtils::GetSplitFName(cut.path), CString(cut.name));
        EXPECT_EQ(FileUtils::GetSplitExtension(cut.path, 1), CString(cut.extension));
    }
}

TEST(CompanionContract, FileNameIsNameAndExtensionWithoutTheFolder)
{
    for (const Cut& cut : cuts)
        EXPECT_EQ(FileUtils::GetSplitFileName(cut.path), CString(cut.name) + cut.extension);
}

TEST(CompanionContract, FolderNameAndExtensionRebuildEveryText)
{
    const std::vector<CString> texts = {u"C:a",
                                        u"C:",
                                        u"C:a.b",
                                        u"\\\\",
                                        u"\\\\server",
                                        u"\\\\server\\share",
                                        u"//x/y.z",
                                        u".",
                                        u"..",
                                        u"...",
                                        u"a.b/..",
                                        u"\\?\\C:\\a.b",
                                        u"\xD83D/\xDE00.\xDC80",
                                        CString(u'.', 5000),
                                        CString(u'/', 5000),
                                        CString(std::u16string_view(u"/a\0b.c\0d", 8))};
    for (const CString& text : texts)
        EXPECT_EQ(FileUtils::GetSplitDirPath(text) + FileUtils::GetSplitFName(text) +
                      FileUtils::GetSplitExtension(text, 1),
                  text);
}

TEST(CompanionContract, ExtensionOfANameWithoutADotIsEmpty)
{
    EXPECT_EQ(FileUtils::GetSplitExtension(u"/d.d/name", 1), u"");
    EXPECT_EQ(FileUtils::GetSplitExtension(u"C:\\d.d\\name", 1), u"");
}

TEST(CompanionContract, ExtensionComesWithItsDotForOneAlone)
{
    for (const int other : {0, 2, INT_MIN, -1, INT_MAX})
        EXPECT_EQ(FileUtils::GetSplitExtension(u"/d/a.jpg", other), u"jpg");
    EXPECT_EQ(FileUtils::GetSplitExtension(u"/d/a.jpg", 1), u".jpg");
    EXPECT_EQ(FileUtils::GetSplitExtension(u"/d/a.", 0), u"");
}

TEST(CompanionContract, SelectorChoosesThePartOfThePath)
{
    const CString path = u"C:\\d.d\\a.b.c";
    const std::vector<CString> parts = {path, u"C:\\", u"C:\\d.d\\", u"a.b.c", u".c", u"a.b"};
    for (int selector = 0; selector <= 5; ++selector)
        EXPECT_EQ(FileUtils::GetSplitPath(path, selector), parts[static_cast<std::size_t>(selector)]);
    EXPECT_EQ(FileUtils::GetSplitPath(u"\\\\server\\share\\x\\a.b", 1), u"\\\\server\\share\\");
    EXPECT_EQ(FileUtils::GetSplitPath(u"/x/a.b", 1), u"/");
    EXPECT_EQ(FileUtils::GetSplitPath(u"x/a.b", 1), u"");
}

TEST(CompanionContract, UnknownSelectorGivesNoPart)
{
    for (const int selector : extremes)
        EXPECT_EQ(FileUtils::GetSplitPath(u"/d/a.b", selector), u"");
    EXPECT_EQ(FileUtils::GetSplitPath(u"/d/a.b", 6), u"");
}

TEST(CompanionContract, CombinedPathHasExactlyOneSeparatorBetween)
{
    const std::vector<std::pair<CString, CString>> windowsPairs = {{u"C:\\a", u"b\\c"},
                                                                   {u"C:\\a\\", u"b\\c"},
                                                                   {u"C:\\a", u"\\b\\c"},
                                                                   {u"C:\\a\\", u"\\b\\c"},
                                                                   {u"C:\\a\\\\\\", u"\\\\b\\c"}};
    for (const auto& [folder, relative] : windowsPairs)
        EXPECT_EQ(FileUtils::GetCombinePath(folder, relative), u"C:\\a\\b\\c");
    for (const auto& [folder, relative] :
         std::vector<std::pair<CString, CString>>{{u"/a", u"b"}, {u"/a/", u"b"}, {u"/a", u"/b"}, {u"/a//", u"//b"}})
        EXPECT_EQ(FileUtils::GetCombinePath(folder, relative), u"/a/b");
    EXPECT_EQ(FileUtils::GetCombinePath(u"C:\\", u"b"), u"C:\\b");
    EXPECT_EQ(FileUtils::GetCombinePath(u"/", u"b"), u"/b");
    EXPECT_EQ(FileUtils::GetCombinePath(u"\\\\s\\t\\", u"b"), u"\\\\s\\t\\b");
}

TEST(CompanionContract, CombinedPathKeepsItsInnerSeparatorsAndThatAtItsEnd)
{
    EXPECT_EQ(FileUtils::GetCombinePath(u"C:\\a\\\\b", u"c\\\\d\\"), u"C:\\a\\\\b\\c\\\\d\\");
    EXPECT_EQ(FileUtils::GetCombinePath(u"/a//b", u"*.*"), u"/a//b/*.*");
}

TEST(CompanionContract, CombinedPathOfOneEmptyTextIsTheOther)
{
    EXPECT_EQ(FileUtils::GetCombinePath(u"", u"b"), u"b");
    EXPECT_EQ(FileUtils::GetCombinePath(u"/a", u""), u"/a");
    EXPECT_EQ(FileUtils::GetCombinePath(u"", u""), u"");
}

// Files and folders

TEST(CompanionContract, FilesAndFoldersExistAndNothingElseDoes)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a.txt", "x");
    EXPECT_NE(FileUtils::IsFileExist(file), 0);
    EXPECT_NE(FileUtils::IsFileExist(scratch.Path()), 0);
    EXPECT_EQ(FileUtils::IsFileExist(scratch.Path(u"b.txt")), 0);
    EXPECT_EQ(FileUtils::IsFileExist(u""), 0);
    EXPECT_EQ(FileUtils::IsFileExist(scratch.Path(u"no/such")), 0);
    EXPECT_EQ(FileUtils::IsFileExist(CString::Join({file, std::u16string_view(u"\0x", 2)})), 0);
}

TEST(CompanionContract, LinkToNothingExistsAndIsNoFolder)
{
    const ScratchFolder scratch;
    const CString link = scratch.Path(u"link");
    if (const std::string whyNot = VyrTests::MakeLink(scratch.Path(u"missing"), link); !whyNot.empty())
        GTEST_SKIP() << whyNot;
    EXPECT_NE(FileUtils::IsFileExist(link), 0);
    EXPECT_EQ(FileUtils::IsDirectory(link), 0);
}

TEST(CompanionContract, OnlyAnExistingFolderIsADirectory)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a.d", "x");
    EXPECT_NE(FileUtils::IsDirectory(scratch.MakeFolder(u"b.d")), 0);
    EXPECT_EQ(FileUtils::IsDirectory(file), 0);
    EXPECT_EQ(FileUtils::IsDirectory(scratch.Path(u"missing")), 0);
    EXPECT_EQ(FileUtils::IsDirectory(u""), 0);
}

TEST(CompanionContract, ReadOnlyAttributeIsToldForFiles)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a.txt", "x");
    EXPECT_EQ(FileUtils::IsReadOnly(file), 0);
    VyrTests::SetReadOnly(file, true);
    EXPECT_NE(FileUtils::IsReadOnly(file), 0);
    VyrTests::SetReadOnly(file, false);
    EXPECT_EQ(FileUtils::IsReadOnly(file), 0);
    EXPECT_EQ(FileUtils::IsReadOnly(scratch.Path(u"missing")), 0);
}

TEST(CompanionContract, DownloadMarkGoesOnceAndTheContentStays)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a.txt", "content");
    EXPECT_EQ(FileUtils::DeleteZoneId(file), 0);
    VyrTests::MarkAsDownloaded(file);
    ASSERT_TRUE(VyrTests::IsMarkedAsDownloaded(file));
    EXPECT_NE(FileUtils::DeleteZoneId(file), 0);
    EXPECT_FALSE(VyrTests::IsMarkedAsDownloaded(file));
    EXPECT_EQ(FileUtils::DeleteZoneId(file), 0);
    EXPECT_EQ(scratch.ReadFile(u"a.txt"), "content");
    EXPECT_EQ(FileUtils::DeleteZoneId(scratch.Path(u"missing")), 0);
}

TEST(CompanionContract, SizeOfAPathIsItsBytesOrTheSumBelowIt)
{
    const ScratchFolder scratch;
    EXPECT_EQ(FileUtils::GetFileSize(scratch.Path()), 0);
    const CString file = scratch.WriteFile(u"a.bin", std::string(1025, '\0'));
    scratch.WriteFile(u"d/e/f.bin", std::string(70'000, 'x'));
    scratch.WriteFile(u"d/empty");
    EXPECT_EQ(FileUtils::GetFileSize(file), 1025);
    EXPECT_EQ(FileUtils::GetFileSize(scratch.Path(u"d/empty")), 0);
    EXPECT_EQ(FileUtils::GetFileSize(scratch.Path()), 71'025);
    EXPECT_EQ(FileUtils::GetFileSize(scratch.Path(u"missing")), -1);
    EXPECT_EQ(FileUtils::GetFileSize(u""), -1);
}

TEST(CompanionContract, SizeTextHasThreeDigitsAtMostOfTheFittingUnit)
{
    const UserLocale locale(u"en_US");
    constexpr std::int64_t kilo = 1024;
    EXPECT_EQ(DigitsOf(FileUtils::GetFileSize(std::int64_t{1023}, 0)), u"1023");
    const std::vector<std::pair<std::int64_t, const char16_t*>> units = {{kilo, u"KB"},
                                                                         {kilo * kilo, u"MB"},
                                                                         {kilo * kilo * kilo, u"GB"},
                                                                         {kilo * kilo * kilo * kilo, u"TB"},
                                                                         {kilo * kilo * kilo * kilo * kilo, u"PB"}};
    for (const auto& [size, unit] : units) {
        const CString text = FileUtils::GetFileSize(size, 0);
        EXPECT_TRUE(EndsWith(text, unit)) << testing::PrintToString(text);
        EXPECT_EQ(DigitsOf(text), u"100");
        EXPECT_EQ(FileUtils::GetFileSize(size * 999, 0), CString(u"999 ") + unit);
    }
    EXPECT_EQ(FileUtils::GetFileSize(std::int64_t{1331}, 0), u"1.29 KB");
    EXPECT_EQ(FileUtils::GetFileSize(kilo * 1023, 0), u"0.99 MB");
    const CString largest = FileUtils::GetFileSize(std::numeric_limits<std::int64_t>::max(), 0);
    EXPECT_TRUE(EndsWith(largest, u" PB"));
    EXPECT_EQ(DigitsOf(largest), u"8191");
}

TEST(CompanionContract, SizeTextOfFormatOneIsInBytesAndOtherFormatsAreAsZero)
{
    const UserLocale locale(u"en_US");
    EXPECT_EQ(FileUtils::GetFileSize(std::int64_t{1'234'567}, 1), u"1,234,567 bytes");
    EXPECT_EQ(FileUtils::GetFileSize(std::numeric_limits<std::int64_t>::max(), 1), u"9,223,372,036,854,775,807 bytes");
    for (const int format : extremes)
        EXPECT_EQ(FileUtils::GetFileSize(std::int64_t{1'234'567}, format),
                  FileUtils::GetFileSize(std::int64_t{1'234'567}, 0));
    for (const std::int64_t unknown : {std::int64_t{-1}, std::numeric_limits<std::int64_t>::min()})
        for (const int format : {0, 1, INT_MAX})
            EXPECT_EQ(FileUtils::GetFileSize(unknown, format), u"");
}

TEST(CompanionContract, ProgramIsNamedByItsFullPathAndItsFileName)
{
    const CString module = FileUtils::GetModuleFilePath();
    EXPECT_NE(FileUtils::IsFileExist(module), 0);
    EXPECT_EQ(FileUtils::GetAppFileName(), FileUtils::GetSplitFileName(module));
    EXPECT_EQ(FileUtils::GetSplitFName(module), u"VyrLibraryUtilsTests");
    EXPECT_EQ(FileUtils::GetModuleFilePath(), module);
}

TEST(CompanionContract, SystemFilePathEndsInTheNameAndIsEmptyForNone)
{
    const CString path = FileUtils::GetSystemFilePath(u"some.thing");
    EXPECT_EQ(FileUtils::GetSplitFileName(path), u"some.thing");
    EXPECT_NE(FileUtils::GetSplitPath(path, 1), u"");
    EXPECT_EQ(FileUtils::GetSystemFilePath(u""), u"");
    const CString apps = FileUtils::GetWindowsSystemAppsDirectoryPath();
    ASSERT_FALSE(apps.IsEmpty());
    EXPECT_FALSE(VyrPlatform::FileSystem::IsSeparator(apps[apps.GetLength() - 1]));
}

TEST(CompanionContract, FolderIsMadeWithEveryMissingParent)
{
    const ScratchFolder scratch;
    const CString deep = scratch.Path(u"a/b.c/.d/e");
    EXPECT_NE(FolderUtils::CreateFolderPathExists(deep), 0);
    EXPECT_NE(FileUtils::IsDirectory(deep), 0);
    EXPECT_NE(FolderUtils::CreateFolderPathExists(deep), 0);
    EXPECT_NE(FolderUtils::CreateFolderPathExists(scratch.Path(u"f/g") + u"/"), 0);
    EXPECT_NE(FileUtils::IsDirectory(scratch.Path(u"f/g")), 0);
}

TEST(CompanionContract, FolderIsNotMadeWhereAFileStandsOrWithoutAName)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a", "kept");
    EXPECT_EQ(FolderUtils::CreateFolderPathExists(file), 0);
    EXPECT_EQ(FolderUtils::CreateFolderPathExists(scratch.Path(u"a/b")), 0);
    EXPECT_EQ(FolderUtils::CreateFolderPathExists(u""), 0);
    EXPECT_EQ(scratch.ReadFile(u"a"), "kept");
}

TEST(CompanionContract, DataLocationsAreFullPathsOfTheirOwn)
{
    const std::vector<CString> paths = {PathUtils::GetApplicationLogFolderPath(),
                                        PathUtils::GetLocalDataApplicationFilePath(), PathUtils::GetUpdatesFilePath(),
                                        PathUtils::GetLocalDataUpdatesFilePath()};
    for (std::size_t i = 0; i < paths.size(); ++i) {
        EXPECT_NE(FileUtils::GetSplitPath(paths[i], 1), u"");
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_NE(paths[i], paths[j]);
    }
    EXPECT_EQ(PathUtils::GetUpdatesFileName(), u"Updates.ini");
    EXPECT_EQ(FileUtils::GetSplitFileName(paths[2]), PathUtils::GetUpdatesFileName());
    EXPECT_EQ(FileUtils::GetSplitFileName(paths[3]), PathUtils::GetUpdatesFileName());
    EXPECT_EQ(FileUtils::GetSplitDirPath(paths[3]), FileUtils::GetSplitDirPath(paths[1]));
}

// Text and numbers

TEST(CompanionContract, EachPercentSIsReplacedInOrderByTheNextText)
{
    EXPECT_EQ(StringUtils::GetFormatedText(u"<%s>", u"1"), u"<1>");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s%s", u"1", u"2"), u"12");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s-%s-%s", u"1", u"2", u"3"), u"1-2-3");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s %s %s %s", u"1", u"2", u"3", u"4"), u"1 2 3 4");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s %s %s %s %s", u"1", u"2", u"3", u"4", u"5"), u"1 2 3 4 5");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s%s%s%s%s%s", u"1", u"2", u"3", u"4", u"5", u"6"), u"123456");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s%s%s%s%s%s%s!", u"1", u"2", u"3", u"4", u"5", u"6", u"7"), u"1234567!");
}

TEST(CompanionContract, PercentSInsideATextIsNotReplaced)
{
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s|%s", u"%s", u"b"), u"%s|b");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s%s", u"%", u"s"), u"%s");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%%ss", u"s"), u"%ss");
}

TEST(CompanionContract, FormatMeansNothingButPercentS)
{
    EXPECT_EQ(StringUtils::GetFormatedText(u"%d %n %S %% %5s %", u"x"), u"%d %n %S %% %5s %");
    EXPECT_EQ(StringUtils::GetFormatedText(u"none", u"x", u"y"), u"none");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s %s", u"x"), u"x %s");
    EXPECT_EQ(StringUtils::GetFormatedText(u"", u"x"), u"");
    EXPECT_EQ(StringUtils::GetFormatedText(u"[%s]", u""), u"[]");
}

TEST(CompanionContract, NumbersAreWrittenInDecimalToTheirBounds)
{
    EXPECT_EQ(StringUtils::IntNumberToString(0), u"0");
    EXPECT_EQ(StringUtils::IntNumberToString(-7), u"-7");
    EXPECT_EQ(StringUtils::IntNumberToString(INT_MIN), u"-2147483648");
    EXPECT_EQ(StringUtils::IntNumberToString(INT_MAX), u"2147483647");
    EXPECT_EQ(StringUtils::DWORDNumberToString(0), u"0");
    EXPECT_EQ(StringUtils::DWORDNumberToString(UINT32_MAX), u"4294967295");
}

TEST(CompanionContract, NumbersAreReadFromTheStartAndSaturate)
{
    const std::vector<std::pair<const char16_t*, std::int32_t>> cases = {{u"", 0},
                                                                         {u"42", 42},
                                                                         {u"  +42", 42},
                                                                         {u" -42abc", -42},
                                                                         {u"007", 7},
                                                                         {u"abc", 0},
                                                                         {u"--1", 0},
                                                                         {u"- 1", 0},
                                                                         {u"-", 0},
                                                                         {u"0x10", 0},
                                                                         {u"1,234", 1},
                                                                         {u"2147483647", INT_MAX},
                                                                         {u"2147483648", INT_MAX},
                                                                         {u"-2147483648", INT_MIN},
                                                                         {u"-2147483649", INT_MIN},
                                                                         {u"99999999999999999999999999", INT_MAX},
                                                                         {u"-99999999999999999999999999", INT_MIN}};
    for (const auto& [text, number] : cases) {
        SCOPED_TRACE(testing::PrintToString(CString(text)));
        EXPECT_EQ(StringUtils::StringToIntNumber(text), number);
        EXPECT_EQ(StringUtils::GetTokenizeInt(text, u"|", 0), number);
    }
    EXPECT_EQ(StringUtils::StringToULongLong(u"18446744073709551615"), UINT64_MAX);
    EXPECT_EQ(StringUtils::StringToULongLong(u"18446744073709551616"), UINT64_MAX);
    EXPECT_EQ(StringUtils::StringToULongLong(u"4294967296"), 4294967296U);
    EXPECT_EQ(StringUtils::StringToULongLong(u"-1"), 0U);
    EXPECT_EQ(StringUtils::StringToULongLong(u""), 0U);
}

TEST(CompanionContract, WrittenNumbersAreReadBack)
{
    for (const int number : {INT_MIN, INT_MIN + 1, -10, -1, 0, 1, 9, 10, INT_MAX - 1, INT_MAX})
        EXPECT_EQ(StringUtils::StringToIntNumber(StringUtils::IntNumberToString(number)), number);
}

TEST(CompanionContract, TextIsSplitAtAnyOfTheSeparators)
{
    const CString text = u",;a,b;;c d,";
    EXPECT_EQ(StringUtils::GetTokenizeStringCount(text, u",;"), 3);
    EXPECT_EQ(StringUtils::GetTokenizeString(text, u",;", 0), u"a");
    EXPECT_EQ(StringUtils::GetTokenizeString(text, u",;", 1), u"b");
    EXPECT_EQ(StringUtils::GetTokenizeString(text, u",;", 2), u"c d");
    EXPECT_EQ(StringUtils::GetTokenizeString(text, u",;", 3), u"");
    EXPECT_EQ(StringUtils::GetTokenizeString(u"a.b", u".", 1), u"b");
    EXPECT_EQ(StringUtils::GetTokenizeInt(u"1.-22.3", u".", 1), -22);
    EXPECT_EQ(StringUtils::GetTokenizeInt(u"1.-22.3", u".", 3), 0);
}

TEST(CompanionContract, EmptyTextAndSeparatorsAloneHaveNoToken)
{
    EXPECT_EQ(StringUtils::GetTokenizeStringCount(u"", u","), 0);
    EXPECT_EQ(StringUtils::GetTokenizeStringCount(u"", u""), 0);
    EXPECT_EQ(StringUtils::GetTokenizeStringCount(u",,,", u","), 0);
    EXPECT_EQ(StringUtils::GetTokenizeString(u",,,", u",", 0), u"");
    EXPECT_EQ(StringUtils::GetTokenizeStringCount(u"a,b", u""), 1);
    EXPECT_EQ(StringUtils::GetTokenizeString(u"a,b", u"", 0), u"a,b");
}

TEST(CompanionContract, TokenOutsideTheTextIsEmpty)
{
    for (const int index : extremes) {
        EXPECT_EQ(StringUtils::GetTokenizeString(u"1,2", u",", index), u"");
        EXPECT_EQ(StringUtils::GetTokenizeInt(u"1,2", u",", index), 0);
    }
}

TEST(CompanionContract, QuotesAreAddedOnceAndAllRemoved)
{
    EXPECT_EQ(StringUtils::GetAddDoubleQuotesString(u"a"), u"\"a\"");
    EXPECT_EQ(StringUtils::GetAddDoubleQuotesString(u""), u"\"\"");
    EXPECT_EQ(StringUtils::GetAddDoubleQuotesString(u"a\"b"), u"\"a\"b\"");
    EXPECT_EQ(StringUtils::GetAddDoubleQuotesCommaString(u"a"), u"\"a\",");
    EXPECT_EQ(StringUtils::GetAddDoubleQuotesCommaString(u""), u"\"\",");
    EXPECT_EQ(StringUtils::GetRemoveDoubleQuotesString(u"\"a\"\"b\" 'c'\""), u"ab 'c'");
    EXPECT_EQ(StringUtils::GetRemoveDoubleQuotesString(u"\"\""), u"");
}

TEST(CompanionContract, ThousandsSeparatorsFollowTheLocale)
{
    {
        const UserLocale locale(u"en_US");
        EXPECT_EQ(StringUtils::GetFormatedSizeThousands(0), u"0");
        EXPECT_EQ(StringUtils::GetFormatedSizeThousands(999), u"999");
        EXPECT_EQ(StringUtils::GetFormatedSizeThousands(1000), u"1,000");
        EXPECT_EQ(StringUtils::GetFormatedSizeThousands(-1000), u"-1,000");
        EXPECT_EQ(StringUtils::GetFormatedSizeThousands(-999), u"-999");
        EXPECT_EQ(StringUtils::GetFormatedSizeThousands(std::numeric_limits<std::int64_t>::min()),
                  u"-9,223,372,036,854,775,808");
        EXPECT_EQ(StringUtils::GetFormatedSizeThousands(std::numeric_limits<std::int64_t>::max()),
                  u"9,223,372,036,854,775,807");
    }
    const UserLocale locale(u"de_DE");
    EXPECT_EQ(StringUtils::GetFormatedSizeThousands(1'234'567), u"1.234.567");
}

TEST(CompanionContract, CharacterClassesHoldForTheWholeText)
{
    EXPECT_NE(RegexUtils::IsHex(u"0123456789abcdefABCDEF"), 0);
    EXPECT_NE(RegexUtils::IsAlphabetNumber(u"azAZ09"), 0);
    EXPECT_NE(RegexUtils::IsSymbol(u"!/:@[`{~-_"), 0);
    for (const char16_t* const text : {u"", u"0g", u"0 ", u" 0", u"0x1", u"a\n", u"\xFF10"})
        EXPECT_EQ(RegexUtils::IsHex(text), 0);
    for (const char16_t* const text : {u"", u"a-", u"a b", u"\xE9", u"a\n", u"_"})
        EXPECT_EQ(RegexUtils::IsAlphabetNumber(text), 0);
    for (const char16_t* const text : {u"", u"-a", u"- ", u"1", u"-\n", u"\x20AC"})
        EXPECT_EQ(RegexUtils::IsSymbol(text), 0);
}

TEST(CompanionContract, TextsAreComparedByTheCollationOfTheLocale)
{
    for (const char16_t* const name : {u"en_US", u"de_DE", u"C"}) {
        const UserLocale locale(name);
        EXPECT_LT(CompareUtils::CompareText(u"a", u"B", 0, 0, 1024), 0);
        EXPECT_GT(CompareUtils::CompareText(u"B", u"a", 0, 0, 1024), 0);
        EXPECT_EQ(CompareUtils::CompareText(u"a", u"a", 0, 0, 1024), 0);
        EXPECT_LT(CompareUtils::CompareText(u"", u"a", 0, 0, 1024), 0);
        EXPECT_EQ(CompareUtils::CompareText(u"", u"", 0, 0, 1024), 0);
        EXPECT_LT(CompareUtils::CompareText(u"\xE4", u"b", 0, 0, 1024), 0);
    }
}

TEST(CompanionContract, AnyNonZeroIntReversesTheComparison)
{
    for (const int descending : {1, 2, INT_MIN, -1, INT_MAX}) {
        EXPECT_GT(CompareUtils::CompareText(u"a", u"b", descending, 0, 1024), 0);
        EXPECT_LT(CompareUtils::CompareText(u"b", u"a", descending, 0, 1024), 0);
        EXPECT_EQ(CompareUtils::CompareText(u"b", u"b", descending, 0, 1024), 0);
    }
    EXPECT_LT(CompareUtils::CompareText(u"a", u"b", 0, UINT32_MAX, 0), 0);
}

// Pictures, messages, documents, versions

TEST(CompanionContract, PictureTellsItsMomentAndItsCamera)
{
    const ScratchFolder scratch;
    const CString picture = scratch.WriteFile(u"p.jpg", VyrTests::BuildJpeg(VyrTests::PictureFacts{}));
    EXPECT_EQ(ImageUtils::GetPropertyTagExifDTOrig(picture), u"2024:07:19 18:45:03");
    EXPECT_EQ(ImageUtils::GetEquipMake(picture), u"Testmaker");
    EXPECT_EQ(ImageUtils::GetEquipModel(picture), u"Model 1");
}

TEST(CompanionContract, PictureWithoutATagAndNoPictureTellNothing)
{
    const ScratchFolder scratch;
    VyrTests::PictureFacts facts;
    facts.make.clear();
    facts.dateTimeOriginal.clear();
    const CString picture = scratch.WriteFile(u"p.jpg", VyrTests::BuildJpeg(facts));
    EXPECT_EQ(ImageUtils::GetEquipMake(picture), u"");
    EXPECT_EQ(ImageUtils::GetPropertyTagExifDTOrig(picture), u"");
    EXPECT_EQ(ImageUtils::GetEquipModel(picture), u"Model 1");
    for (const CString& path :
         {scratch.WriteFile(u"t.jpg", "text"), scratch.Path(u"missing.jpg"), scratch.Path(), CString()}) {
        EXPECT_EQ(ImageUtils::GetPropertyTagExifDTOrig(path), u"");
        EXPECT_EQ(ImageUtils::GetEquipMake(path), u"");
        EXPECT_EQ(ImageUtils::GetEquipModel(path), u"");
    }
}

TEST(CompanionContract, ErrorMessageIsOneLineAndEmptyForAnUnknownCode)
{
    const CString message = LogUtils::GetLastErrorMessage(2);
    ASSERT_FALSE(message.IsEmpty());
    EXPECT_EQ(message.View().find_first_of(u"\r\n"), std::u16string_view::npos);
    EXPECT_EQ(LogUtils::GetLastErrorMessage(0x7FFFFFFF), u"");
    EXPECT_EQ(LogUtils::GetLastErrorMessage(0x2BADC0DE), u"");
}

TEST(CompanionContract, CompoundDocumentIsKnownByItsHeader)
{
    std::string header("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
    header.append(16, '\0');
    header += std::string("\x3E\0\x03\0\xFE\xFF\x09\0\x06\0", 10);
    header.resize(3 * 512);
    const ScratchFolder scratch;
    EXPECT_NE(PropertyUtils::IsOLE2Document(scratch.WriteFile(u"a.doc", header)), 0);
    EXPECT_EQ(PropertyUtils::IsOLE2Document(scratch.WriteFile(u"short.doc", header.substr(0, 8))), 0);
    header[0] = 'P';
    EXPECT_EQ(PropertyUtils::IsOLE2Document(scratch.WriteFile(u"other.doc", header)), 0);
    EXPECT_EQ(PropertyUtils::IsOLE2Document(scratch.WriteFile(u"empty.doc")), 0);
    EXPECT_EQ(PropertyUtils::IsOLE2Document(scratch.Path(u"missing.doc")), 0);
    EXPECT_EQ(PropertyUtils::IsOLE2Document(scratch.Path()), 0);
    EXPECT_EQ(PropertyUtils::IsOLE2Document(u""), 0);
}

TEST(CompanionContract, VersionOfTheRunningProgramIsReadInItsOrder)
{
    // As the build states them for this test program.
    EXPECT_EQ(VersionUtils::GetFileMajorVersion(), 7);
    EXPECT_EQ(VersionUtils::GetFileMinorVersion(), 0);
    EXPECT_EQ(VersionUtils::GetFileRevisionVersion(), 65535);
    EXPECT_EQ(VersionUtils::GetFileBuildVersion(), 12);
    EXPECT_EQ(VersionUtils::GetProductName(), u"Companion t\xE9sts");
    EXPECT_EQ(VersionUtils::GetStringProductVersion(), u"7.0 preview");
}

TEST(CompanionContract, HostileTextsMakeNoOperationThrow)
{
    const std::vector<CString> texts = {CString(u'%', 3000),     CString(u'<', 3000),
                                        CString(u'\'', 3001),    CString(u'9', 3000),
                                        CString(u'\xD800', 300), CString(u'\xDC80', 300),
                                        CString(u'/', 3000),     CString(std::u16string_view(u"a\0%s\0/b", 7))};
    for (const CString& text : texts)
        EXPECT_NO_THROW({
            FileUtils::GetSplitPath(text, 5);
            FileUtils::GetCombinePath(text, text);
            EXPECT_EQ(FileUtils::IsReadOnly(text + u"/no/such"), 0);
            EXPECT_EQ(FileUtils::GetFileSize(text + u"/no/such"), -1);
            FileUtils::DeleteZoneId(text);
            FileUtils::GetSystemFilePath(text);
            StringUtils::GetFormatedText(text, text, text);
            EXPECT_EQ(StringUtils::GetTokenizeStringCount(text, text), 0);
            StringUtils::StringToULongLong(text);
            CompareUtils::CompareText(text, text + u"x", 0, 0, 1024);
            RegexUtils::IsHex(text);
            ImageUtils::GetEquipMake(text);
            PropertyUtils::IsOLE2Document(text);
        });
}
