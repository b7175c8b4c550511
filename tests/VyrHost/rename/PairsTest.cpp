#include <VyrHost/rename/NameLists.h>

#include <VyrHost/text/Errors.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using namespace VyrHost::Rename;
using namespace VyrHost::Text;
using namespace std::string_view_literals;

namespace {

/// All pairs as "FROM>TO|".
std::u16string Read(std::string_view bytes)
{
    std::u16string told;
    for (const NamePair& pair : ParsePairs(bytes))
        told.append(pair.from.View()).append(u">").append(pair.to.View()).append(u"|");
    return told;
}

std::string ErrorOf(std::string_view bytes)
{
    try {
        (void)ParsePairs(bytes);
    } catch (const UsageError& error) {
        return error.what();
    }
    return {};
}

} // namespace

TEST(Pairs, AreReadFromCommaSeparatedValues)
{
    EXPECT_EQ(Read("a,b\nc d,e\r\n"), u"a>b|c d>e|");
    EXPECT_EQ(Read("\"a,1\",\"b\"\"2\"\"\"\n"), u"a,1>b\"2\"|");
    EXPECT_EQ(Read("\"a\nb\",c\nd,e"), u"a\nb>c|d>e|");
    EXPECT_EQ(Read("a\"b,c"), u"a\"b>c|");
    EXPECT_EQ(Read("\n\r\na,b\n\n"), u"a>b|");
    EXPECT_EQ(Read(""), u"");
}

TEST(Pairs, AreReadFromTabSeparatedValuesLiterally)
{
    EXPECT_EQ(Read("a,b\t\"c\"\nd\te\r\n"), u"a,b>\"c\"|d>e|");
    EXPECT_EQ(Read("a b\tc\\d"), u"a b>c\\d|");
}

TEST(Pairs, AreReadFromCsvWithSemicolons)
{
    EXPECT_EQ(Read("a;b\nc, d;e\r\n"), u"a>b|c, d>e|");
    EXPECT_EQ(Read("\"a;1\";b\n\"c\nd\";\"e\"\"\"\n"), u"a;1>b|c\nd>e\"|");
    EXPECT_EQ(Read("x, y, z;b"), u"x, y, z>b|");
    EXPECT_EQ(Read("\"a,b\";c"), u"a,b>c|");
    EXPECT_EQ(Read("\"a;b\",c\nd;e,f"), u"a;b>c|d;e>f|");
    // A comma that makes two fields takes precedence.
    EXPECT_EQ(Read("a;1,b"), u"a;1>b|");
    EXPECT_EQ(Read("a;1\tb,2"), u"a;1>b,2|");
}

TEST(Pairs, NameTheSeparatorsInTheErrorWithoutTwoFields)
{
    for (const char* const bytes : {"a\n", "a,b,c\n", "a;b;c\n", "a,b\nc;d\n"})
        EXPECT_THAT(ErrorOf(bytes), testing::HasSubstr("separated by a comma, a semicolon or a tab"));
}

TEST(Pairs, KeepBytesThatAreNotUtf8AndSkipTheByteOrderMark)
{
    EXPECT_EQ(Read("\xEF\xBB\xBF\xC3\xA4,\xFF\n"), u"ä>\xDCFF|");
}

TEST(Pairs, InUtf16AreRefused)
{
    using testing::HasSubstr;
    EXPECT_THAT(ErrorOf("\xFF\xFE"
                        "a\0,\0b\0\n\0"sv),
                HasSubstr("UTF-16"));
    EXPECT_THAT(ErrorOf("\xFE\xFF\0a\0,\0b\0\n"sv), HasSubstr("UTF-16"));
    EXPECT_EQ(Read("\xFF\xFE,b\n"), u"\xDCFF\xDCFE>b|");
}

TEST(Pairs, NameTheWrongLine)
{
    using testing::HasSubstr;
    EXPECT_THAT(ErrorOf("a,b\nc\n"), HasSubstr("line 2"));
    EXPECT_THAT(ErrorOf("a,b,c\n"), HasSubstr("line 1"));
    EXPECT_THAT(ErrorOf("a,b\n,c\n"), HasSubstr("line 2"));
    EXPECT_THAT(ErrorOf("a,\n"), HasSubstr("line 1"));
    EXPECT_THAT(ErrorOf("\"a\n\nb\",c\nd\n"), HasSubstr("line 4"));
    EXPECT_THAT(ErrorOf("a,b\n\"c,d\n"), HasSubstr("line 2"));
    EXPECT_THAT(ErrorOf("\"a\"b,c\n"), HasSubstr("line 1"));
    EXPECT_THAT(ErrorOf("a\0b,c\n"sv), HasSubstr("NUL"));
}
