// Finding texts in names of another normal form.
#include <VyrHost/text/NormalForm.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <string>

using namespace VyrHost::Text;

TEST(NormalForm, IsRecognised)
{
    EXPECT_TRUE(IsComposed(u"plain"));
    EXPECT_TRUE(IsComposed(u"\u00e9"));
    EXPECT_TRUE(IsComposed(u"日本"));
    EXPECT_FALSE(IsComposed(u"e\u0301"));
    EXPECT_EQ(Composed(u"ae\u0301b"), u"a\u00e9b");
}

TEST(NormalForm, KeepsLettersAndTheirAccentsTogether)
{
    const auto pieces = CutForComposing(u"ae\u0301bo\u0302\u0301\U0001F600");
    ASSERT_EQ(pieces.size(), 5u);
    EXPECT_EQ(CString(pieces[0]), u"a");
    EXPECT_EQ(CString(pieces[1]), u"e\u0301");
    EXPECT_EQ(CString(pieces[2]), u"b");
    EXPECT_EQ(CString(pieces[3]), u"o\u0302\u0301");
    EXPECT_EQ(CString(pieces[4]), u"\U0001F600");
    EXPECT_TRUE(CutForComposing(u"").empty());
}

TEST(NormalForm, ReplacesTextOfTheComposedName)
{
    EXPECT_EQ(ReplaceComposed(u"re\u0301sume\u0301", u"\u00e9", u"e"), u"resume");
    EXPECT_EQ(ReplaceComposed(u"\u00e9 e\u0301", u"\u00e9", u"x"), u"x x");
    EXPECT_EQ(ReplaceComposed(u"e\u0301e", u"e", u"x"), u"e\u0301x");
    EXPECT_EQ(ReplaceComposed(u"e\u0301", u"", u"x"), u"e\u0301");
    // The replacement is not searched again, and the rest keeps its form.
    EXPECT_EQ(ReplaceComposed(u"o\u0308e\u0301", u"\u00e9", u"e\u0301\u00e9"), u"o\u0308e\u0301\u00e9");
    EXPECT_EQ(ReplaceComposed(u"ae\u0301ae\u0301a", u"a\u00e9a", u"-"), u"-e\u0301a");
}
