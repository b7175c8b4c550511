// Latin letters spelled out in ASCII.
#include <VyrHost/text/Latin.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

using VyrHost::Text::SpellOutLatin;

TEST(SpelledOutLatin, LosesAccentsInEitherNormalForm)
{
    EXPECT_EQ(SpellOutLatin(u"\u017dlu\u0165ou\u010dk\u00fd k\u016f\u0148"), u"Zlutoucky kun");
    EXPECT_EQ(SpellOutLatin(u"Z\u030clut\u030couc\u030cky\u0301"), u"Zlutoucky");
    EXPECT_EQ(SpellOutLatin(u"Vi\u1ec7t Vie\u0323\u0302t"), u"Viet Viet");
}

TEST(SpelledOutLatin, HasTheUsualLettersForThoseWithoutAnAccent)
{
    EXPECT_EQ(SpellOutLatin(u"Stra\u00dfe \u1e9e"), u"Strasse SS");
    EXPECT_EQ(SpellOutLatin(u"\u00e6 \u00c6 \u0153 \u0152 \u00f8 \u00d8"), u"ae AE oe OE o O");
    EXPECT_EQ(SpellOutLatin(u"\u0111 \u0110 \u0142 \u0141 \u0131 \u0130 \u00fe \u00f0"), u"d D l L i I th d");
    EXPECT_EQ(SpellOutLatin(u"\ufb01n \uff21\uff42 \u2173"), u"fin Ab iv");
}

TEST(SpelledOutLatin, KeepsOtherScriptsAndSigns)
{
    // A mark on a letter of another script belongs to it.
    for (const CString text : {u"\u0416\u0443\u043a", u"\u0438\u0306", u"\u4e2d\u6587", u"\u03ac\u03b1\u0301",
                               u"\U0001F600", u"\u2019\u2013\u2026\u20ac", u"", u"plain 1"})
        EXPECT_EQ(SpellOutLatin(text), text);
    // A byte that is no text stays.
    EXPECT_EQ(SpellOutLatin(u"\u00e9" + CString(char16_t{0xDCFF}, 1)), u"e" + CString(char16_t{0xDCFF}, 1));
}
