#include <VyrHost/rename/NameLists.h>

#include <VyrHost/text/Errors.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <random>
#include <string>

using namespace VyrHost::Rename;
using namespace VyrHost::Text;

TEST(EditedList, HasOneNameInALine)
{
    EXPECT_EQ(EscapeName(u"a b.txt"), "a b.txt");
    EXPECT_EQ(EscapeName(u"a\nb\tc\\d"), "a\\nb\\tc\\\\d");
    EXPECT_EQ(EscapeName(u"\x1b\r\x7f"), "\\u001b\\u000d\\u007f");
    EXPECT_EQ(EscapeName(u"ä\U0001F600\xDCFF\xD83D"), "\xC3\xA4\xF0\x9F\x98\x80\\udcff\\ud83d");
}

TEST(EditedList, ReadsEveryNameBack)
{
    constexpr char16_t Units[] = {u'a',  u'\\', u'n',    u't', u'u',   u'0',   u'd',
                                  u'\n', u'\t', u'\x1b', u'ä', 0xD83D, 0xDE00, 0xDCFF};
    std::mt19937 random(7);
    for (int round = 0; round < 20000; ++round) {
        std::u16string name;
        for (std::size_t length = random() % 12; length > 0; --length)
            name += Units[random() % std::size(Units)];
        EXPECT_EQ(UnescapeName(EscapeName(name)), std::u16string_view(name));
    }
}

TEST(EditedList, KeepsOtherEscapes)
{
    EXPECT_EQ(UnescapeName("a\\x"), u"a\\x");
    EXPECT_EQ(UnescapeName("\\u12"), u"\\u12");
    EXPECT_EQ(UnescapeName("\\u0000"), u"\\u0000");
    EXPECT_EQ(UnescapeName("a\\"), u"a\\");
}

TEST(EditedList, ReadsBackWhatItWrote)
{
    const std::vector<CString> names = {u"a", u"#b", u" c ", u"d\ne", u"4\tf"};
    const auto read = ParseEdited(TextForEditing(names), names.size());
    ASSERT_EQ(read.size(), names.size());
    for (std::uint32_t index = 0; index < names.size(); ++index)
        EXPECT_EQ(read.at(index), names[index]);
}

TEST(EditedList, LinesMayBeDeletedAndMoved)
{
    const auto read = ParseEdited("# explained\n3\tx\r\n\n1\ty", 3);
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read.at(2), u"x");
    EXPECT_EQ(read.at(0), u"y");
    EXPECT_TRUE(ParseEdited("", 3).empty());
}

TEST(EditedList, LinesThatMakeNoSenseAreRefused)
{
    for (const char* const text :
         {"a", "1 a", "\ta", "1", "0\ta", "4\ta", "99999999999\ta", "-1\ta", "1\t", "1\ta\n1\tb"})
        EXPECT_THROW((void)ParseEdited(text, 3), UsageError) << text;
}
