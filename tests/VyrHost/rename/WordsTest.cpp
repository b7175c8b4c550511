// Letter case by words, the width of numbers, and blanks.
#include "RuleChain.h"

#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/rename/Words.h>
#include <VyrHost/text/Errors.h>
#include <VyrPlatform/text/Encoding.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

using namespace VyrHost::Rename;
using namespace VyrTests;
using VyrHost::Text::UsageError;

namespace {

CString Title(const CString& text)
{
    return TitleCase(text, TitleStyle::EveryWord);
}

CString EnglishTitle(const CString& text)
{
    return TitleCase(text, TitleStyle::English);
}

CString OnName(const Rules& rules, const CString& name)
{
    return Apply(rules, FileSubject(name, u".Txt"));
}

} // namespace

TEST(TitleCase, BeginsEveryWordWithACapital)
{
    EXPECT_EQ(Title(u"the lord of the rings"), u"The Lord Of The Rings");
    EXPECT_EQ(Title(u"my_holiday-photos (old).v2 2nd"), u"My_Holiday-Photos (Old).V2 2nd");
    EXPECT_EQ(Title(u"\u00e9t\u00e9 \u00e0 \u043c\u043e\u0441\u043a\u0432\u0430"),
              u"\u00c9t\u00e9 \u00c0 \u041c\u043e\u0441\u043a\u0432\u0430");
    // A letter with its accent as a mark of its own is one letter.
    EXPECT_EQ(Title(u"e\u0301te\u0301"), u"E\u0301te\u0301");
    EXPECT_EQ(Title(u""), u"");
    EXPECT_EQ(Title(u"\u4e2d\u6587 001"), u"\u4e2d\u6587 001");
}

TEST(TitleCase, KeepsAcronymsUnlessAllIsInCapitals)
{
    EXPECT_EQ(Title(u"the NASA usb3 and USB3 of my iPhone"), u"The NASA Usb3 And USB3 Of My iPhone");
    EXPECT_EQ(Title(u"HELLO WORLD 1"), u"Hello World 1");
    EXPECT_EQ(Title(u"IMG_0001"), u"Img_0001");
}

TEST(TitleCase, KeepsLettersBehindApostrophesSmallButInNames)
{
    EXPECT_EQ(Title(u"don't say it\u2019s we're i'll"), u"Don't Say It\u2019s We're I'll");
    EXPECT_EQ(Title(u"o'neill l\u2019amour d'artagnan"), u"O'Neill L\u2019Amour D'Artagnan");
    EXPECT_EQ(Title(u"rock'n'roll 'quoted'"), u"Rock'n'roll 'Quoted'");
    EXPECT_EQ(Title(u"DON'T O'NEILL"), u"Don't O'Neill");
}

TEST(TitleCase, LeavesSmallWordsSmallInEnglish)
{
    EXPECT_EQ(EnglishTitle(u"the lord of the rings"), u"The Lord of the Rings");
    EXPECT_EQ(EnglishTitle(u"Once Upon A Time In The West"), u"Once Upon a Time in the West");
    EXPECT_EQ(EnglishTitle(u"what are you looking for"), u"What Are You Looking For");
    EXPECT_EQ(EnglishTitle(u"artist - the song: a reprise (in blue)"), u"Artist - The Song: A Reprise (In Blue)");
    EXPECT_EQ(EnglishTitle(u"state-of-the-art"), u"State-of-the-Art");
    EXPECT_EQ(EnglishTitle(u"the_best_of_us"), u"The_Best_of_Us");
}

TEST(SentenceCase, BeginsSentencesWithACapital)
{
    EXPECT_EQ(SentenceCase(u"My Holiday. The USB Stick"), u"My holiday. The USB stick");
    EXPECT_EQ(SentenceCase(u"HELLO WORLD"), u"Hello world");
    EXPECT_EQ(SentenceCase(u"v1.Two Words"), u"V1.two words");
    EXPECT_EQ(SentenceCase(u"(\u00c9T\u00c9)"), u"(\u00c9t\u00e9)");
}

TEST(PadNumbers, FillsUpNumbersThatAreTooShort)
{
    EXPECT_EQ(PadNumbers(u"s1e12 0003 x", 3, WhichNumbers::All), u"s001e012 0003 x");
    EXPECT_EQ(PadNumbers(u"s1e12 5", 3, WhichNumbers::First), u"s001e12 5");
    EXPECT_EQ(PadNumbers(u"s1e12 5", 3, WhichNumbers::Last), u"s1e12 005");
    EXPECT_EQ(PadNumbers(u"7", 2, WhichNumbers::Last), u"07");
    EXPECT_EQ(PadNumbers(u"none", 5, WhichNumbers::First), u"none");
    EXPECT_EQ(PadNumbers(u"", 5, WhichNumbers::All), u"");
    // Longer than any type counts, and digits of other scripts.
    const CString longNumber = CString(u'9', 60);
    EXPECT_EQ(PadNumbers(longNumber, 61, WhichNumbers::All), u"0" + longNumber);
    EXPECT_EQ(PadNumbers(u"\u0663", 2, WhichNumbers::All), u"\u0663");
}

TEST(Blanks, GoFromTheEndsAndAreCollapsed)
{
    EXPECT_EQ(TrimBlanks(u" \u00a0a  b\u3000\t"), u"a  b");
    EXPECT_EQ(TrimBlanks(u"a"), u"a");
    EXPECT_EQ(TrimBlanks(u" \t"), u"");
    EXPECT_EQ(CollapseBlanks(u"a \u00a0 b\tc  "), u"a b c ");
    EXPECT_EQ(CollapseBlanks(u""), u"");
}

TEST(WordRules, ChangeTheNameAlone)
{
    EXPECT_EQ(OnName(CaseRules(u"title"), u"a of b"), u"/d/A Of B.Txt");
    EXPECT_EQ(OnName(CaseRules(u"title-en"), u"a of b"), u"/d/A of B.Txt");
    EXPECT_EQ(OnName(CaseRules(u"sentence"), u"a Of b"), u"/d/A of b.Txt");
    EXPECT_EQ(OnName(PadRules(u"2"), u"1-2"), u"/d/01-02.Txt");
    EXPECT_EQ(OnName(PadRules(u"first:2"), u"1-2"), u"/d/01-2.Txt");
    EXPECT_EQ(OnName(PadRules(u"last:2"), u"1-2"), u"/d/1-02.Txt");
    EXPECT_EQ(OnName(AsciiRules(), u"\u00c9t\u00e9"), u"/d/Ete.Txt");
    EXPECT_EQ(OnName(TrimRules(), u" a "), u"/d/a.Txt");
    EXPECT_EQ(OnName(CollapseRules(), u"a  b"), u"/d/a b.Txt");
}

TEST(WordRules, RefuseWhatMakesNoSense)
{
    for (const CString text : {u"", u"x", u"256", u"-1", u"first", u"first:", u"middle:2", u"last:x"})
        EXPECT_THROW((void)PadRules(text), UsageError) << VyrPlatform::Encoding::ToUtf8(text);
    EXPECT_THROW((void)CaseRules(u"titel"), UsageError);
}
