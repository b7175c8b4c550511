// Letters and tokens that templates may not contain.
#include <VyrHost/rename/TemplateTokens.h>

#include <VyrHost/text/Errors.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace VyrHost::Rename;
using testing::HasSubstr;
using VyrHost::Text::UsageError;

namespace {

template <class Check>
std::string ErrorOf(Check check, std::u16string_view text)
{
    try {
        check(text);
    } catch (const UsageError& error) {
        return error.what();
    }
    return {};
}

} // namespace

TEST(DateFormatLetters, WithAMeaningAreAccepted)
{
    for (const char16_t* const format :
         {u"yyyyMMdd_HHmmss", u"yyyy-MM-dd HH.mm.ss", u"d MMMM yyyy", u"EEE, MMM d, yy", u"EEEE", u"h:m:s a",
          u"yyyy年MM月", u"100% d", u"%", u"d < M", u"", u"2024", u"\u00e9 yy"})
        EXPECT_EQ(ErrorOf(RequireDateFormat, format), "");
}

TEST(DateFormatLetters, WithoutAMeaningAreRefused)
{
    for (const char16_t letter : std::u16string_view(u"bcefgijklnopqrtuvwxzABCDFGIJKLNOPQRSTUVWXYZ")) {
        const std::u16string format = {u'y', u'y', u' ', letter};
        EXPECT_THAT(ErrorOf(RequireDateFormat, format),
                    HasSubstr(std::string("no part of a date is called ") + static_cast<char>(letter)));
    }
    // The rest of a run that is too long or too short.
    EXPECT_THAT(ErrorOf(RequireDateFormat, u"yyyyy"), HasSubstr("called y"));
    EXPECT_THAT(ErrorOf(RequireDateFormat, u"y"), HasSubstr("called y"));
    EXPECT_THAT(ErrorOf(RequireDateFormat, u"EE"), HasSubstr("called E"));
    EXPECT_THAT(ErrorOf(RequireDateFormat, u"YYYY-MM-DD"), HasSubstr("called Y"));
}

TEST(DateFormatLetters, BehindAPercentSignAreRefused)
{
    for (const char16_t* const format : {u"%Y", u"%d", u"%Y-%m-%d", u"yyyy %H"})
        EXPECT_THAT(ErrorOf(RequireDateFormat, format), HasSubstr("a percent sign is text here"));
}

TEST(DateFormatLetters, InApostrophesAreText)
{
    for (const char16_t* const format :
         {u"'Trip' yyyy", u"yyyy'T'HH", u"h 'o''clock' a", u"''yy", u"yyyy 'Day d", u"'%Y'", u"'<Foo>' yy"})
        EXPECT_EQ(ErrorOf(RequireDateFormat, format), "");
}

TEST(DateFormatTokens, ThatAreUnknownAreRefused)
{
    EXPECT_EQ(ErrorOf(RequireDateFormat, u"<Make> <Model><Folder>yyyy <Name>"), "");
    for (const char16_t* const format : {u"yyyy <make>", u"<Nmae>", u"<Number> yyyy", u"<yyyy>", u"<>yy"})
        EXPECT_THAT(ErrorOf(RequireDateFormat, format), HasSubstr("only <Name>, <Make>, <Model>, <Folder>"));
}

TEST(DateFormatTokens, InApostrophesAreRefused)
{
    for (const char16_t* const format : {u"'<Name>'", u"yyyy 'a <Make>", u"'x<Folder>'yyyy"})
        EXPECT_THAT(ErrorOf(RequireDateFormat, format), HasSubstr("the apostrophes make text of <"));
}

TEST(DateFormatTokens, WithoutAnEndTakeLinearTime)
{
    EXPECT_EQ(ErrorOf(RequireDateFormat, std::u16string(1'000'000, u'<')), "");
}

TEST(NumberTokens, ThatAreUnknownAreRefused)
{
    EXPECT_EQ(ErrorOf(RequireNumberTokens, u"<Name> <Number>"), "");
    for (const char16_t* const text : {u"<Nmae> ###", u"<name>#", u"<Make>#", u"a<<x>#"})
        EXPECT_THAT(ErrorOf(RequireNumberTokens, text), HasSubstr("only <Name>, <Number>"));
    for (const char16_t* const text : {u"<###>", u"# <", u"<>#", u"<a #", u"< a > #", u"a -> #"})
        EXPECT_EQ(ErrorOf(RequireNumberTokens, text), "");
}
