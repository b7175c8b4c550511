// Filling in, splitting and quoting texts, and converting numbers to and from text.
#include <VyrLibraryUtils/StringUtils.h>

#include <tests/support/Describe.h>
#include <tests/support/UserLocale.h>

#include <gtest/gtest.h>

#include <cinttypes>
#include <cstdio>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using VyrLibraryUtils::StringUtils;
using VyrTests::UserLocale;

namespace {

constexpr int smallest = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();
constexpr std::int64_t smallest64 = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t largest64 = std::numeric_limits<std::int64_t>::max();

CString FromAscii(const std::string& text)
{
    return VyrPlatform::Encoding::FromUtf8(text);
}

TEST(StringUtilsFormat, FillsOneToSevenTextsInOrder)
{
    EXPECT_EQ(StringUtils::GetFormatedText(u"<%s>", u"a"), u"<a>");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s-%s", u"a", u"b"), u"a-b");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s%s%s", u"a", u"b", u"c"), u"abc");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s%s%s%s.", u"a", u"b", u"c", u"d"), u"abcd.");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s,%s,%s,%s,%s", u"a", u"b", u"c", u"d", u"e"), u"a,b,c,d,e");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s%s%s%s%s%s", u"a", u"b", u"c", u"d", u"e", u"f"), u"abcdef");
    EXPECT_EQ(StringUtils::GetFormatedText(u"[%s %s %s %s %s %s %s]", u"a", u"b", u"c", u"d", u"e", u"f", u"g"),
              u"[a b c d e f g]");
}

TEST(StringUtilsFormat, IgnoresTextsThatAreLeftOver)
{
    EXPECT_EQ(StringUtils::GetFormatedText(u"none", u"a"), u"none");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s", u"a", u"b", u"c", u"d", u"e", u"f", u"g"), u"a");
    EXPECT_EQ(StringUtils::GetFormatedText(u"", u"a", u"b"), u"");
}

TEST(StringUtilsFormat, KeepsPlaceholdersWithoutAText)
{
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s %s %s", u"a"), u"a %s %s");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s%s%s%s%s%s%s%s", u"a", u"b", u"c", u"d", u"e", u"f", u"g"),
              u"abcdefg%s");
}

TEST(StringUtilsFormat, NeverLooksForMarksInsideATextItPutIn)
{
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s|%s", u"%s", u"b"), u"%s|b");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%%s", u"s%s"), u"%s%s");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%s%s", u"%", u"s"), u"%s");
}

TEST(StringUtilsFormat, KeepsOtherConversions)
{
    EXPECT_EQ(StringUtils::GetFormatedText(u"%d %n %S %", u"a"), u"%d %n %S %");
    EXPECT_EQ(StringUtils::GetFormatedText(u"%d%s", u"a"), u"%da");
}

TEST(StringUtilsNumbers, WritesDecimalText)
{
    for (const int number : {0, 1, -1, 42, -4711, smallest, largest})
        EXPECT_EQ(StringUtils::IntNumberToString(number), FromAscii(std::to_string(number)));
    for (const std::uint32_t number : {0U, 1U, 4711U, 0x80000000U, 0xFFFFFFFFU})
        EXPECT_EQ(StringUtils::DWORDNumberToString(number), FromAscii(std::to_string(number)));
}

TEST(StringUtilsNumbers, ReadsBlanksASignAndLeadingDigits)
{
    EXPECT_EQ(StringUtils::StringToIntNumber(u"42"), 42);
    EXPECT_EQ(StringUtils::StringToIntNumber(u" \t\n+42"), 42);
    EXPECT_EQ(StringUtils::StringToIntNumber(u"\v\f\r7"), 7);
    EXPECT_EQ(StringUtils::StringToIntNumber(u"\b7"), 0);
    EXPECT_EQ(StringUtils::StringToIntNumber(u"  -7 8"), -7);
    EXPECT_EQ(StringUtils::StringToIntNumber(u"12abc"), 12);
    EXPECT_EQ(StringUtils::StringToIntNumber(u"007"), 7);
    EXPECT_EQ(StringUtils::StringToIntNumber(u"0x10"), 0);
    EXPECT_EQ(StringUtils::StringToULongLong(u" 42,5"), 42U);
}

TEST(StringUtilsNumbers, GivesZeroForATextWithoutLeadingDigits)
{
    for (const char16_t* const text : {u"", u" ", u"-", u"+", u"abc", u"- 1", u"--1", u"+-1", u".5", u"\u0661"}) {
        EXPECT_EQ(StringUtils::StringToIntNumber(text), 0) << testing::PrintToString(CString(text));
        EXPECT_EQ(StringUtils::StringToULongLong(text), 0U) << testing::PrintToString(CString(text));
    }
}

TEST(StringUtilsNumbers, SaturatesNumbersOutOfRange)
{
    EXPECT_EQ(StringUtils::StringToIntNumber(u"2147483647"), largest);
    EXPECT_EQ(StringUtils::StringToIntNumber(u"2147483648"), largest);
    EXPECT_EQ(StringUtils::StringToIntNumber(u"-2147483648"), smallest);
    EXPECT_EQ(StringUtils::StringToIntNumber(u"-2147483649"), smallest);
    EXPECT_EQ(StringUtils::StringToIntNumber(u"99999999999999999999999"), largest);
    EXPECT_EQ(StringUtils::StringToIntNumber(u"-99999999999999999999999"), smallest);
    EXPECT_EQ(StringUtils::StringToIntNumber(CString(u'9', 1'000'000)), largest);

    EXPECT_EQ(StringUtils::StringToULongLong(u"18446744073709551615"), std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(StringUtils::StringToULongLong(u"18446744073709551616"), std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(StringUtils::StringToULongLong(u"99999999999999999999999"), std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(StringUtils::StringToULongLong(u"-1"), 0U);
}

TEST(StringUtilsNumbers, ReadsBackWhatItWrites)
{
    std::mt19937 random(1);
    for (int i = 0; i < 100'000; ++i) {
        const auto bits = static_cast<std::uint32_t>(random() >> random() % 32);
        const auto number = static_cast<std::int32_t>(bits);
        ASSERT_EQ(StringUtils::StringToIntNumber(StringUtils::IntNumberToString(number)), number);
        ASSERT_EQ(StringUtils::StringToULongLong(StringUtils::DWORDNumberToString(bits)), bits);
    }
}

TEST(StringUtilsTokens, SplitsAtAnyOfTheSeparators)
{
    const CString text = u"1.2,3";
    EXPECT_EQ(StringUtils::GetTokenizeStringCount(text, u".,"), 3);
    EXPECT_EQ(StringUtils::GetTokenizeString(text, u".,", 0), u"1");
    EXPECT_EQ(StringUtils::GetTokenizeString(text, u".,", 1), u"2");
    EXPECT_EQ(StringUtils::GetTokenizeString(text, u".,", 2), u"3");
    EXPECT_EQ(StringUtils::GetTokenizeInt(text, u".,", 2), 3);
}

TEST(StringUtilsTokens, CountsARunOfSeparatorsOnceAndSkipsThoseAtTheEnds)
{
    const CString text = u",,a,,;b;,";
    EXPECT_EQ(StringUtils::GetTokenizeStringCount(text, u",;"), 2);
    EXPECT_EQ(StringUtils::GetTokenizeString(text, u",;", 0), u"a");
    EXPECT_EQ(StringUtils::GetTokenizeString(text, u",;", 1), u"b");
}

TEST(StringUtilsTokens, FindsNoneInAnEmptyTextAndInSeparators)
{
    EXPECT_EQ(StringUtils::GetTokenizeStringCount(u"", u","), 0);
    EXPECT_EQ(StringUtils::GetTokenizeStringCount(u"", u""), 0);
    EXPECT_EQ(StringUtils::GetTokenizeStringCount(u",,,", u","), 0);
    EXPECT_EQ(StringUtils::GetTokenizeString(u",,,", u",", 0), u"");
}

TEST(StringUtilsTokens, TakesTheWholeTextWithoutSeparators)
{
    EXPECT_EQ(StringUtils::GetTokenizeStringCount(u"a,b", u""), 1);
    EXPECT_EQ(StringUtils::GetTokenizeString(u"a,b", u"", 0), u"a,b");
}

TEST(StringUtilsTokens, GivesNothingOutsideTheTokens)
{
    for (const int index : {2, 3, 1000, largest, -1, smallest}) {
        EXPECT_EQ(StringUtils::GetTokenizeString(u"1,2", u",", index), u"");
        EXPECT_EQ(StringUtils::GetTokenizeInt(u"1,2", u",", index), 0);
    }
}

/// The tokens by a second way: a list built unit by unit.
std::vector<std::u16string> TokensOf(std::u16string_view text, std::u16string_view separators)
{
    std::vector<std::u16string> tokens(1);
    for (const char16_t unit : text)
        if (separators.find(unit) == separators.npos)
            tokens.back() += unit;
        else if (!tokens.back().empty())
            tokens.emplace_back();
    if (tokens.back().empty())
        tokens.pop_back();
    return tokens;
}

TEST(StringUtilsTokens, AgreesWithAListBuiltUnitByUnit)
{
    std::mt19937 random(2);
    for (int i = 0; i < 20'000; ++i) {
        CString text;
        for (auto length = random() % 12; length > 0; --length)
            text += u"ab,;\0"[random() % 5];
        const CString separators = std::u16string_view(u",;\0", random() % 4);
        const std::vector<std::u16string> expected = TokensOf(text, separators);
        ASSERT_EQ(StringUtils::GetTokenizeStringCount(text, separators), static_cast<int>(expected.size()));
        for (std::size_t index = 0; index < expected.size(); ++index)
            ASSERT_EQ(StringUtils::GetTokenizeString(text, separators, static_cast<int>(index)),
                      std::u16string_view(expected[index]));
    }
}

TEST(StringUtilsTokens, TakesTimeInProportionToHostileTexts)
{
    // Quadratic work on a million tokens would take minutes.
    CString text;
    for (int i = 0; i < 1'000'000; ++i)
        text += u"a,";
    EXPECT_EQ(StringUtils::GetTokenizeStringCount(text, u","), 1'000'000);
    EXPECT_EQ(StringUtils::GetTokenizeString(text, u",", 999'999), u"a");
    EXPECT_EQ(StringUtils::GetTokenizeString(text, u",", 1'000'000), u"");
}

TEST(StringUtilsQuotes, EnclosesWithoutDoubling)
{
    EXPECT_EQ(StringUtils::GetAddDoubleQuotesString(u"a\"b"), u"\"a\"b\"");
    EXPECT_EQ(StringUtils::GetAddDoubleQuotesString(u""), u"\"\"");
    EXPECT_EQ(StringUtils::GetAddDoubleQuotesCommaString(u"a,b"), u"\"a,b\",");
    EXPECT_EQ(StringUtils::GetAddDoubleQuotesCommaString(u""), u"\"\",");
}

TEST(StringUtilsQuotes, RemovesEveryOne)
{
    EXPECT_EQ(StringUtils::GetRemoveDoubleQuotesString(u"\"C:\\a b\\c.exe\""), u"C:\\a b\\c.exe");
    EXPECT_EQ(StringUtils::GetRemoveDoubleQuotesString(u"\"\"a\"\"\"b\""), u"ab");
    EXPECT_EQ(StringUtils::GetRemoveDoubleQuotesString(u"\"\"\""), u"");
    EXPECT_EQ(StringUtils::GetRemoveDoubleQuotesString(u"a 'b'"), u"a 'b'");
}

TEST(StringUtilsThousands, SeparatesAsTheUsersLocaleDoes)
{
    struct
    {
        const char16_t* locale;
        const char16_t* text;
    } const cases[] = {
        {u"C", u"1,234,567"},     {u"POSIX", u"1,234,567"}, {u"en_US", u"1,234,567"},
        {u"de_DE", u"1.234.567"}, {u"tr_TR", u"1.234.567"}, {u"az", u"1.234.567"},
        {u"ja_JP", u"1,234,567"}, {u"hi_IN", u"12,34,567"}, {u"de_DE.UTF-8", u"1.234.567"},
    };
    for (const auto& expected : cases) {
        const UserLocale locale(expected.locale);
        EXPECT_EQ(StringUtils::GetFormatedSizeThousands(1'234'567), expected.text)
            << testing::PrintToString(CString(expected.locale));
    }
}

/// The English text of `number` by a second way: the C library's digits, split from the end.
std::string WithCommas(std::int64_t number)
{
    char digits[32];
    std::snprintf(digits, sizeof digits, "%" PRId64, number);
    std::string text = digits;
    for (std::size_t at = text.size(); at > 3 && text[at - 4] != '-';)
        text.insert(at -= 3, ",");
    return text;
}

TEST(StringUtilsThousands, WritesEverySizeOfNumber)
{
    const UserLocale locale(u"C");
    for (const std::int64_t number :
         {std::int64_t{0}, std::int64_t{-1}, std::int64_t{999}, std::int64_t{-999}, std::int64_t{1000},
          std::int64_t{-1000}, std::int64_t{100000}, smallest64, largest64})
        EXPECT_EQ(StringUtils::GetFormatedSizeThousands(number), FromAscii(WithCommas(number)));
    std::mt19937_64 random(3);
    for (int i = 0; i < 10'000; ++i) {
        const auto number = static_cast<std::int64_t>(random()) >> random() % 64;
        ASSERT_EQ(StringUtils::GetFormatedSizeThousands(number), FromAscii(WithCommas(number)));
    }
}

} // namespace
