#include "RuleChain.h"

#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/Errors.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <climits>

using namespace VyrHost::Rename;
using namespace VyrHost::Text;
using namespace VyrTests;

namespace {

CString Numbered(const CString& text, int index = 0, const NumberSettings& settings = {})
{
    return Apply(NumberRules(text, settings), FileSubject(u"old", u".jpg", index));
}

NumberSettings WithDigits(int digits)
{
    NumberSettings settings;
    settings.digits = digits;
    return settings;
}

} // namespace

TEST(NumberTemplate, WritesTheNumberInPlaceOfTheHashes)
{
    EXPECT_EQ(Numbered(u"Trip ###"), u"/d/Trip 001.jpg");
    EXPECT_EQ(Numbered(u"### Trip", 9), u"/d/010 Trip.jpg");
    EXPECT_EQ(Numbered(u"a##b", 99), u"/d/a100b.jpg");
    EXPECT_EQ(Numbered(u"#"), u"/d/1.jpg");
}

TEST(NumberTemplate, WritesTheOldNameInPlaceOfItsToken)
{
    EXPECT_EQ(Numbered(u"<Name>#"), u"/d/old1.jpg");
    EXPECT_EQ(Numbered(u"##<Name>"), u"/d/01old.jpg");
    EXPECT_EQ(Numbered(u"a<Name>b#c", 4), u"/d/aoldb5c.jpg");
    EXPECT_EQ(Numbered(u"a#b<Name>c", 4), u"/d/a5boldc.jpg");
}

TEST(NumberTemplate, KeepsHashesWhereATokenIsTheNumber)
{
    EXPECT_EQ(Numbered(u"#<Number> of ##", 0, WithDigits(3)), u"/d/#001 of ##.jpg");
}

TEST(NumberTemplate, CountsFromStartByStep)
{
    NumberSettings settings;
    settings.start = 100;
    settings.step = -5;
    EXPECT_EQ(Numbered(u"#", 3, settings), u"/d/85.jpg");
    settings.start = -5;
    EXPECT_EQ(Numbered(u"###", 0, settings), u"/d/00-5.jpg");
}

TEST(NumberTemplate, DoesNotCountBeyondTheLastNumber)
{
    NumberSettings settings;
    settings.start = INT_MAX - 1;
    EXPECT_EQ(Numbered(u"#", 1, settings), u"/d/2147483647.jpg");
    EXPECT_THROW((void)Numbered(u"#", 2, settings), UsageError);
    settings.start = INT_MIN;
    settings.step = -1;
    EXPECT_EQ(Numbered(u"#", 0, settings), u"/d/-2147483648.jpg");
    EXPECT_THROW((void)Numbered(u"#<Name>", 1, settings), UsageError);
    settings.step = INT_MAX;
    EXPECT_EQ(Numbered(u"#", 2, settings), u"/d/2147483646.jpg");
    EXPECT_THROW((void)Numbered(u"<Name>#", 3, settings), UsageError);
    EXPECT_THROW((void)Numbered(u"#", INT_MAX, settings), UsageError);
}

TEST(NumberTemplate, IsAsWideAs255DigitsAndNoWider)
{
    const CString widest(u'#', 255);
    EXPECT_EQ(Numbered(widest).GetLength(), 3 + 255 + 4);
    EXPECT_EQ(Numbered(u"#", 0, WithDigits(255)).GetLength(), 3 + 255 + 4);
    EXPECT_THROW((void)NumberRules(CString(u'#', 256), {}), UsageError);
    EXPECT_THROW((void)NumberRules(u"#", WithDigits(256)), UsageError);
}

TEST(NumberTemplate, IsRefusedWhenItMakesNoSense)
{
    for (const char16_t* const text :
         {u"", u"no place", u"<Name>", u"#-#", u"<Number><Number>", u"<Name>#<Name>", u"a/#"})
        EXPECT_THROW((void)NumberRules(text, {}), UsageError);
    EXPECT_THROW((void)NumberRules(std::u16string_view(u"a\0#", 3), {}), UsageError);
    // The width is given twice.
    EXPECT_THROW((void)NumberRules(u"###", WithDigits(3)), UsageError);
}

TEST(NumberTemplate, AllowsNumberingOfConflicts)
{
    const Rules rules = NumberRules(u"#", {});
    ASSERT_EQ(rules.size(), 1u);
    EXPECT_TRUE(rules.front()->MayNumber());
}
