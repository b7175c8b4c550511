// The halves of pairs, for every code unit.
#include <VyrPlatform/text/Surrogates.h>

#include <gtest/gtest.h>

#include <string>

using namespace VyrPlatform;

TEST(Surrogates, AreFirstAndSecondHalves)
{
    unsigned high = 0;
    unsigned low = 0;
    for (unsigned value = 0; value <= 0xFFFF; ++value) {
        const auto unit = static_cast<char16_t>(value);
        EXPECT_EQ(IsHighSurrogate(unit), value >= 0xD800 && value <= 0xDBFF);
        EXPECT_EQ(IsLowSurrogate(unit), value >= 0xDC00 && value <= 0xDFFF);
        EXPECT_EQ(IsSurrogate(unit), IsHighSurrogate(unit) || IsLowSurrogate(unit));
        EXPECT_EQ(BeginsWithLoneSurrogate({&unit, 1}), IsSurrogate(unit));
        high += IsHighSurrogate(unit);
        low += IsLowSurrogate(unit);
    }
    EXPECT_EQ(high, 1024u);
    EXPECT_EQ(low, 1024u);
}

TEST(Surrogates, MakeOneCharacterOnlyInPairs)
{
    EXPECT_TRUE(BeginsWithPair(u"\U0001F600x"));
    EXPECT_FALSE(BeginsWithLoneSurrogate(u"\U0001F600"));
    for (const std::u16string& text :
         {std::u16string(), std::u16string(u"a"), std::u16string(1, u'\xD83D'), std::u16string(u"\xD83D\xD83D\xDE00"),
          std::u16string(u"\xDE00\xD83D"), std::u16string(u"\xD83D") + u"a"})
        EXPECT_FALSE(BeginsWithPair(text));
    EXPECT_FALSE(BeginsWithLoneSurrogate({}));
    EXPECT_TRUE(BeginsWithLoneSurrogate(u"\xDE00\xD83D"));
}

TEST(Surrogates, AreTakenOffCharacterByCharacter)
{
    const std::u16string text = u"a\xD83D\xD83D\xDE00\xDC80\xFFFF";
    std::u16string_view rest = text;
    for (const char32_t expected :
         {char32_t{u'a'}, char32_t{0xD83D}, U'\U0001F600', char32_t{0xDC80}, char32_t{0xFFFF}})
        EXPECT_EQ(TakeCharacter(rest), expected);
    EXPECT_TRUE(rest.empty());
    for (char32_t character = 0x10000; character <= 0x10FFFF; character += 0x3FF) {
        const char16_t units[] = {static_cast<char16_t>(0xD7C0 + character / 0x400),
                                  static_cast<char16_t>(0xDC00 + character % 0x400)};
        std::u16string_view pair(units, 2);
        EXPECT_EQ(TakeCharacter(pair), character);
        EXPECT_TRUE(pair.empty());
    }
    std::u16string_view last = u"\U0010FFFF";
    EXPECT_EQ(TakeCharacter(last), U'\U0010FFFF');
}
