// Changes of the values of tokens.
#include <VyrHost/rename/TextChange.h>

#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace VyrHost::Rename;
using testing::HasSubstr;

namespace {

/// `text` as `change` makes it, or what is wrong with the change.
std::string Changed(std::u16string_view change, const CString& text)
{
    std::string fault;
    const TextChange made = ParseChange(change, fault);
    EXPECT_EQ(fault.empty(), static_cast<bool>(made));
    return made ? VyrPlatform::Encoding::ToUtf8(made(text)) : fault;
}

} // namespace

TEST(TextChange, ConvertsLetters)
{
    EXPECT_EQ(Changed(u"upper", u"a\u00e4 1"), "A\u00c4 1");
    EXPECT_EQ(Changed(u"lower", u"A\u00c4 1"), "a\u00e4 1");
}

TEST(TextChange, ReplacesTexts)
{
    EXPECT_EQ(Changed(u"replace a bb", u"banana"), "bbbnbbnbb");
    EXPECT_EQ(Changed(u" replace  ' ' _ ", u"a b c"), "a_b_c");
    EXPECT_EQ(Changed(u"replace a ''", u"banana"), "bnn");
    EXPECT_EQ(Changed(u"replace '''' 'it''s'", u"a'b"), "ait'sb");
}

TEST(TextChange, PadsNumbers)
{
    EXPECT_EQ(Changed(u"pad 3", u"a 1-22"), "a 001-022");
    EXPECT_EQ(Changed(u"pad 00005", u"7"), "00007");
}

TEST(TextChange, RefusesWhatIsNone)
{
    for (const std::u16string_view width : {u"x", u"-1", u"256", u"99999999999999999999"})
        EXPECT_THAT(Changed(CString::Join({u"pad ", width}), u"1"),
                    HasSubstr("': a whole number from 0 to 255 is expected"));
    EXPECT_THAT(Changed(u"pad", u""), HasSubstr("'pad' is not a change; the changes are"));
    EXPECT_THAT(Changed(u"", u""), HasSubstr("there is no change after a |"));
    EXPECT_THAT(Changed(u"uper", u""), HasSubstr("did you mean upper?"));
    EXPECT_THAT(Changed(u"Quite", u""), HasSubstr("there is no change 'Quite'"));
    EXPECT_THAT(Changed(u"upper now", u""), HasSubstr("'upper now' is not a change"));
    EXPECT_THAT(Changed(u"replace a", u""), HasSubstr("is not a change"));
    EXPECT_THAT(Changed(u"replace '' a", u""), HasSubstr("a text to look for is expected"));
    EXPECT_THAT(Changed(u"replace 'a b", u""), HasSubstr("apostrophes enclose a whole argument"));
    EXPECT_THAT(Changed(u"replace 'a'b c", u""), HasSubstr("apostrophes enclose a whole argument"));
}
