// Tests of names made safe to show.
#include <VyrHost/text/SafeText.h>

#include <gtest/gtest.h>

using namespace VyrHost::Text;

TEST(SafeText, LetsNothingThroughThatATerminalObeys)
{
    EXPECT_EQ(SafeText(u"a\nb\tc\rd"), "a\\nb\\tc\\rd");
    EXPECT_EQ(SafeText(u"\x1b[31mred\x07"), "\\x1b[31mred\\x07");
    EXPECT_EQ(SafeText(u"\x7f\x9b"), "\\x7f\\x9b");
    EXPECT_EQ(SafeText(u"gpj.\u202Eexe"), "gpj.\\u202eexe");
    for (char16_t unit = 1; unit < 0x20; ++unit)
        EXPECT_EQ(SafeText(std::u16string_view(&unit, 1)).find_first_of("\x1b\n\r\t\b\a"), std::string::npos);
}

TEST(SafeText, WritesLoneSurrogatesAsEscapesAndPairsAsTheyAre)
{
    EXPECT_EQ(SafeText(u"a\xDCFF"), "a\\udcff");
    EXPECT_EQ(SafeText(u"\xD83D"), "\\ud83d");
    EXPECT_EQ(SafeText(u"\U0001F600"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(SafeText(u"naïve \\ 日本"), "na\xC3\xAFve \\ \xE6\x97\xA5\xE6\x9C\xAC");
}

TEST(SafeText, MeasuresTheColumnsThatATerminalTakes)
{
    EXPECT_EQ(SafeWidth(u"abc"), 3);
    EXPECT_EQ(SafeWidth(u"naïve"), 5);
    EXPECT_EQ(SafeWidth(u"日本語.txt"), 10);
    EXPECT_EQ(SafeWidth(u"한글"), 4);
    EXPECT_EQ(SafeWidth(u"\U0001F600"), 2);
    EXPECT_EQ(SafeWidth(u"e\u0301"), 1);
    EXPECT_EQ(SafeWidth(u"ｶﾅ"), 2);
    EXPECT_EQ(SafeWidth(u"\n"), 2);
    EXPECT_EQ(SafeWidth(u""), 0);
}

TEST(SafeText, FillsOrCutsToTheWidthInTheMiddle)
{
    EXPECT_EQ(FittedText(u"abc", 5), "abc  ");
    EXPECT_EQ(FittedText(u"abcdef", 6), "abcdef");
    EXPECT_EQ(FittedText(u"abcdefgh", 5), "ab\xE2\x80\xA6gh");
    EXPECT_EQ(FittedText(u"abcdefgh", 4), "ab\xE2\x80\xA6h");
    EXPECT_EQ(FittedText(u"abcdefgh", 1), "\xE2\x80\xA6");
    EXPECT_EQ(FittedText(u"abc", 0), "");
}

TEST(SafeText, CutsBetweenCharactersAndNeverInsideOne)
{
    // Two columns each: five fit one and a half on either side, so a blank fills up.
    EXPECT_EQ(FittedText(u"日本語日本語", 6), "\xE6\x97\xA5\xE2\x80\xA6\xE8\xAA\x9E ");
    EXPECT_EQ(FittedText(u"\U0001F600\U0001F600\U0001F600", 5), "\xF0\x9F\x98\x80\xE2\x80\xA6\xF0\x9F\x98\x80");
    // An accent goes with the letter that it is drawn over.
    EXPECT_EQ(FittedText(u"abcde\u0301", 3), "a\xE2\x80\xA6"
                                             "e\xCC\x81");
    EXPECT_EQ(FittedText(u"abcd\u0301e", 3), "a\xE2\x80\xA6"
                                             "e");
    // An escape is cut as a whole.
    EXPECT_EQ(FittedText(u"\x01\x01\x01", 5), "\xE2\x80\xA6    ");
}
