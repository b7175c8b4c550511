// The renames that edit a name: the tables of their rules, and every short case compared with a model on plain vectors.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <tests/support/ScratchFolder.h>
#include <tests/support/UserLocale.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>

using VyrLibraryFuncs::NameFuncs;

namespace {

constexpr int smallest = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();

const CString unchanged = u"unchanged";

/// An item without folder and extension, so that the result is only the new name.
NameFuncs::ITEM Named(const char16_t* name)
{
    NameFuncs::ITEM item;
    item.filePath = unchanged;
    item.fileName = name;
    return item;
}

CString AddDelete(const char16_t* name, int type, int position, int count, const char16_t* text = u"")
{
    NameFuncs::ITEM item = Named(name);
    item.addDeleteType = type;
    item.position = position;
    item.deleteCount = count;
    item.addText = text;
    return NameFuncs::GetAddDeleteFilePath(item);
}

CString Convert(const char16_t* name, int type)
{
    NameFuncs::ITEM item = Named(name);
    item.convertType = type;
    return NameFuncs::GetConvertFilePath(item);
}

CString Replace(const char16_t* name, const char16_t* find, const char16_t* replacement)
{
    NameFuncs::ITEM item = Named(name);
    item.findText = find;
    item.replaceText = replacement;
    return NameFuncs::GetReplaceFilePath(item);
}

NameFuncs::ITEM WithExtension(const char16_t* extension, int type)
{
    NameFuncs::ITEM item;
    item.filePath = u"/no such folder/a";
    item.dirPath = u"/no such folder/";
    item.fileName = u"a";
    item.extension = extension;
    item.extensionType = type;
    item.newExtension = u"jpg";
    return item;
}

/// The add/delete rules as marks on the single characters of a name: which are kept, and in front of which the text
/// goes. Nothing where the rule does not apply.
std::optional<std::u16string> ModelOfAddDelete(const std::u16string& name, int type, int position, int count)
{
    const int length = static_cast<int>(name.size());
    if (position > length || ((type == 4 || type == 5) && length - position < count))
        return std::nullopt;
    std::u16string result;
    for (int i = 0; i <= length; ++i) {
        const int fromEnd = length - i;
        if ((type == 0 && i == position) || (type == 1 && fromEnd == position))
            result += u"XY";
        if (i == length)
            break;
        const bool kept = type == 0 || type == 1 || (type == 2 && i < position) || (type == 3 && fromEnd <= position) ||
                          (type == 4 && (i < position || i >= position + count)) ||
                          (type == 5 && (fromEnd <= position || fromEnd > position + count));
        if (kept)
            result += name[static_cast<std::size_t>(i)];
    }
    return result;
}

} // namespace

TEST(NameFuncsAddDelete, InsertsAtAPlaceFromTheStart)
{
    EXPECT_EQ(AddDelete(u"abc", 0, 0, 0, u"X"), u"Xabc");
    EXPECT_EQ(AddDelete(u"abc", 0, 3, 0, u"X"), u"abcX");
    EXPECT_EQ(AddDelete(u"abc", 0, 4, 0, u"X"), unchanged);
}

TEST(NameFuncsAddDelete, InsertsAtAPlaceFromTheEnd)
{
    EXPECT_EQ(AddDelete(u"abc", 1, 0, 0, u"X"), u"abcX");
    EXPECT_EQ(AddDelete(u"abc", 1, 1, 0, u"X"), u"abXc");
    EXPECT_EQ(AddDelete(u"abc", 1, 3, 0, u"X"), u"Xabc");
}

TEST(NameFuncsAddDelete, DeletesFromAPlaceUpToTheEndAndNoFurther)
{
    EXPECT_EQ(AddDelete(u"abcdef", 4, 2, 3), u"abf");
    EXPECT_EQ(AddDelete(u"abcdef", 4, 2, 4), u"ab");
    EXPECT_EQ(AddDelete(u"abcdef", 4, 2, 5), unchanged);
    EXPECT_EQ(AddDelete(u"abcdef", 5, 1, 2), u"abcf");
    EXPECT_EQ(AddDelete(u"abcdef", 5, 1, 5), u"f");
    EXPECT_EQ(AddDelete(u"abcdef", 5, 1, 6), unchanged);
}

TEST(NameFuncsAddDelete, KeepingNoCharactersGivesAnEmptyName)
{
    NameFuncs::ITEM item = Named(u"abc");
    item.dirPath = u"/d/";
    item.extension = u".txt";
    for (item.addDeleteType = 2; item.addDeleteType <= 3; ++item.addDeleteType)
        EXPECT_EQ(NameFuncs::GetAddDeleteFilePath(item), u"/d/.txt");
}

TEST(NameFuncsAddDelete, UnknownTypeChangesNothing)
{
    for (const int type : {6, 7, -1, smallest, largest})
        EXPECT_EQ(AddDelete(u"abc", type, 1, 1, u"X"), unchanged) << type;
}

TEST(NameFuncsAddDelete, FolderAndExtensionStayAroundTheNewName)
{
    NameFuncs::ITEM item = Named(u"abc");
    item.dirPath = u"/d/";
    item.extension = u".txt";
    item.position = 1;
    item.deleteCount = 1;
    item.addText = u"X";
    const char16_t* const expected[] = {u"/d/aXbc.txt", u"/d/abXc.txt", u"/d/a.txt",
                                        u"/d/c.txt",    u"/d/ac.txt",   u"/d/ac.txt"};
    for (const char16_t* const path : expected) {
        EXPECT_EQ(NameFuncs::GetAddDeleteFilePath(item), path) << item.addDeleteType;
        ++item.addDeleteType;
    }
}

TEST(NameFuncsAddDelete, EveryShortCaseAgreesWithTheModel)
{
    const std::u16string letters = u"abcdef";
    for (std::size_t length = 0; length <= letters.size(); ++length) {
        const std::u16string name = letters.substr(0, length);
        for (int type = 0; type <= 5; ++type)
            for (int position = 0; position <= 8; ++position)
                for (int count = 0; count <= 8; ++count) {
                    const std::optional<std::u16string> expected = ModelOfAddDelete(name, type, position, count);
                    const CString found = AddDelete(name.c_str(), type, position, count, u"XY");
                    EXPECT_EQ(found, expected ? CString(*expected) : unchanged)
                        << "length " << length << ", type " << type << ", position " << position << ", count " << count;
                }
    }
}

TEST(NameFuncsAddDelete, NegativePositionIsTheNearestPlaceInTheName)
{
    for (const int position : {-1, -5, smallest}) {
        EXPECT_EQ(AddDelete(u"abc", 0, position, 0, u"X"), u"Xabc");
        EXPECT_EQ(AddDelete(u"abc", 1, position, 0, u"X"), u"abcX");
        EXPECT_EQ(AddDelete(u"abc", 2, position, 0), u"");
        EXPECT_EQ(AddDelete(u"abc", 3, position, 0), u"");
        EXPECT_EQ(AddDelete(u"abc", 4, position, 2), u"c");
    }
    EXPECT_EQ(AddDelete(u"abcdef", 5, -2, 3), u"abcde") << "the first 6 - 3 + 2 characters";
    EXPECT_EQ(AddDelete(u"abcdef", 5, smallest, 3), u"abcdef");
}

TEST(NameFuncsAddDelete, NegativeCountDeletesNothingFromTheStart)
{
    for (const int count : {-1, smallest})
        EXPECT_EQ(AddDelete(u"abc", 4, 1, count), u"abc");
}

TEST(NameFuncsAddDelete, NegativeCountKeepsCharactersTwiceFromTheEnd)
{
    EXPECT_EQ(AddDelete(u"abcdef", 5, 2, -1), u"abcdeef") << "the first 6 + 1 - 2 characters, then the last 2";
    EXPECT_EQ(AddDelete(u"abcdef", 5, 2, smallest), u"abcdefef");
}

TEST(NameFuncsAddDelete, OutermostPositionsAndCountsStayInBounds)
{
    for (int type = 0; type <= 5; ++type)
        for (const int position : {smallest, smallest + 1, -1, 0, 3, 4, largest})
            for (const int count : {smallest, smallest + 1, -1, 0, 3, 4, largest}) {
                const CString path = AddDelete(u"abc", type, position, count, u"X");
                EXPECT_TRUE(path == unchanged || path.GetLength() <= 6) << type << ' ' << position << ' ' << count;
                EXPECT_EQ(path == unchanged, position > 3 || (type > 3 && std::int64_t{3} - position < count));
            }
}

TEST(NameFuncsAddDelete, CountsAreCodeUnitsAndMayCutASurrogatePair)
{
    EXPECT_EQ(AddDelete(u"\U0001F600b", 2, 1, 0), u"\xD83D");
    EXPECT_EQ(AddDelete(u"\U0001F600b", 2, 2, 0), u"\U0001F600");
    EXPECT_EQ(AddDelete(u"\U0001F600b", 4, 1, 1), u"\xD83D\u0062");
}

TEST(NameFuncsConvert, OnlyTheFirstCharacterIsUpperCased)
{
    EXPECT_EQ(Convert(u"hello world", 0), u"Hello world");
    EXPECT_EQ(Convert(u"hELLO", 0), u"HELLO");
    EXPECT_EQ(Convert(u"\u00E9t\u00E9", 0), u"\u00C9t\u00E9");
    EXPECT_EQ(Convert(u"1st", 0), u"1st");
    EXPECT_EQ(Convert(u"", 0), u"");
}

TEST(NameFuncsConvert, WholeNameIsUpperOrLowerCased)
{
    EXPECT_EQ(Convert(u"Img \u00E0\u03B1\u0431", 1), u"IMG \u00C0\u0391\u0411");
    EXPECT_EQ(Convert(u"IMG \u00C0\u0391\u0411", 2), u"img \u00E0\u03B1\u0431");
    EXPECT_EQ(Convert(u"", 1), u"");
    EXPECT_EQ(Convert(u"", 2), u"");
}

TEST(NameFuncsConvert, LengthNeverChanges)
{
    for (const char16_t* const name : {u"stra\u00DFe", u"\uFB01n", u"\u0149", u"\U00010428", u"\xD800z", u"\u0130"})
        for (const int type : {0, 1, 2})
            EXPECT_EQ(Convert(name, type).GetLength(), CString(name).GetLength());
}

TEST(NameFuncsConvert, UnknownTypeGivesAnEmptyName)
{
    NameFuncs::ITEM item = Named(u"abc");
    item.dirPath = u"/d/";
    item.extension = u".Txt";
    for (const int type : {3, -1, smallest, largest}) {
        item.convertType = type;
        EXPECT_EQ(NameFuncs::GetConvertFilePath(item), u"/d/.Txt");
    }
}

TEST(NameFuncsConvert, ExtensionKeepsItsCase)
{
    NameFuncs::ITEM item = Named(u"aBc");
    item.dirPath = u"/Dir/";
    item.extension = u".Txt";
    const char16_t* const expected[] = {u"/Dir/ABc.Txt", u"/Dir/ABC.Txt", u"/Dir/abc.Txt"};
    for (item.convertType = 0; const char16_t* const path : expected) {
        EXPECT_EQ(NameFuncs::GetConvertFilePath(item), path);
        ++item.convertType;
    }
}

TEST(NameFuncsConvert, CallersTextsAreLeftAsTheyAre)
{
    const NameFuncs::ITEM item = Named(u"abc");
    EXPECT_EQ(Convert(item.fileName.GetString(), 1), u"ABC");
    NameFuncs::ITEM upper = item;
    upper.convertType = 1;
    EXPECT_EQ(NameFuncs::GetConvertFilePath(upper), u"ABC");
    EXPECT_EQ(item.fileName, u"abc");
    EXPECT_EQ(upper.fileName, u"abc");
}

TEST(NameFuncsReplace, EveryOccurrenceIsReplacedFromTheStartWithoutOverlap)
{
    EXPECT_EQ(Replace(u"a-b-c", u"-", u"_"), u"a_b_c");
    EXPECT_EQ(Replace(u"aaaaa", u"aa", u"b"), u"bba");
    EXPECT_EQ(Replace(u"abab", u"ab", u""), u"");
    EXPECT_EQ(Replace(u"ab", u"a", u"aa"), u"aab") << "what was put in is not searched again";
}

TEST(NameFuncsReplace, CaseMatters)
{
    EXPECT_EQ(Replace(u"Img img", u"img", u"x"), u"Img x");
}

TEST(NameFuncsReplace, EmptyOrMissingTextChangesNothing)
{
    EXPECT_EQ(Replace(u"abc", u"", u"x"), u"abc");
    EXPECT_EQ(Replace(u"abc", u"d", u"x"), u"abc");
    EXPECT_EQ(Replace(u"abc", u"abcd", u"x"), u"abc");
    EXPECT_EQ(Replace(u"", u"a", u"x"), u"");
}

TEST(NameFuncsReplace, FolderAndExtensionAreNotSearched)
{
    NameFuncs::ITEM item = Named(u"ab");
    item.dirPath = u"/a/";
    item.extension = u".a";
    item.findText = u"a";
    item.replaceText = u"x";
    EXPECT_EQ(NameFuncs::GetReplaceFilePath(item), u"/a/xb.a");
}

TEST(NameFuncsExtension, CaseIsConverted)
{
    EXPECT_EQ(NameFuncs::GetExtensionFilePath(WithExtension(u".Jpeg", 0)), u"/no such folder/a.JPEG");
    EXPECT_EQ(NameFuncs::GetExtensionFilePath(WithExtension(u".Jpeg", 1)), u"/no such folder/a.jpeg");
}

TEST(NameFuncsExtension, NewExtensionReplacesTheOldOrNone)
{
    EXPECT_EQ(NameFuncs::GetExtensionFilePath(WithExtension(u".jpeg", 2)), u"/no such folder/a.jpg");
    EXPECT_EQ(NameFuncs::GetExtensionFilePath(WithExtension(u"", 2)), u"/no such folder/a.jpg");
}

TEST(NameFuncsExtension, EmptyNewExtensionLeavesABareDot)
{
    NameFuncs::ITEM item = WithExtension(u".jpeg", 2);
    item.newExtension = u"";
    EXPECT_EQ(NameFuncs::GetExtensionFilePath(item), u"/no such folder/a.");
}

TEST(NameFuncsExtension, UnknownTypeDropsTheExtension)
{
    for (const int type : {3, -1, smallest, largest})
        EXPECT_EQ(NameFuncs::GetExtensionFilePath(WithExtension(u".jpeg", type)), u"/no such folder/a") << type;
}

TEST(NameFuncsConvert, CaseIsTheSameInEveryLocale)
{
    NameFuncs::ITEM upper = Named(u"scan.tiff");
    upper.convertType = 1;
    NameFuncs::ITEM lower = Named(u"SCAN.TIFF");
    lower.convertType = 2;
    for (const char16_t* const name : {u"tr_TR", u"az", u"en_US"}) {
        const VyrTests::UserLocale locale(name);
        EXPECT_EQ(NameFuncs::GetConvertFilePath(upper), u"SCAN.TIFF");
        EXPECT_EQ(NameFuncs::GetConvertFilePath(lower), u"scan.tiff");
    }
}
