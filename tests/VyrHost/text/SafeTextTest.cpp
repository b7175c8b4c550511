#include <VyrHost/text/SafeText.h>

#include <gtest/gtest.h>

using namespace VyrHost::Text;

TEST(SafeText, EscapesAllControlCharacters)
{
    EXPECT_EQ(SafeText(u"a\nb\tc\rd"), "a\\nb\\tc\\rd");
    EXPECT_EQ(SafeText(u"\x1b[31mred\x07"), "\\x1b[31mred\\x07");
    EXPECT_EQ(SafeText(u"\x7f\x9b"), "\\x7f\\x9b");
    EXPECT_EQ(SafeText(u"gpj.\u202Eexe"), "gpj.\\u202eexe");
    for (char16_t unit = 1; unit < 0x20; ++unit)
        EXPECT_EQ(SafeText(std::u16string_view(&unit, 1)).find_first_of("\x1b\n\r\t\b\a"), std::string::npos);
}

TEST(SafeText, EscapesLoneSurrogatesButNoPairs)
{
    EXPECT_EQ(SafeText(u"a\xDCFF"), "a\\udcff");
    EXPECT_EQ(SafeText(u"\xD83D"), "\\ud83d");
    EXPECT_EQ(SafeText(u"\U0001F600"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(SafeText(u"naïve \\ 日本"), "na\xC3\xAFve \\ \xE6\x97\xA5\xE6\x9C\xAC");
}

TEST(SafeText, MeasuresTheColumnsOnATerminal)
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
