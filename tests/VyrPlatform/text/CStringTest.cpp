// Sharing, the limits of counts, and the formatter compared with the C library's.
#include <VyrPlatform/text/CString.h>

#include <gtest/gtest.h>

#include <cinttypes>
#include <cstdio>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace {

std::u16string Text(const CString& text)
{
    return std::u16string(text.View());
}

std::u16string Widen(const std::string& ascii)
{
    return std::u16string(ascii.begin(), ascii.end());
}

/// A short text over three letters, so that searches find something.
std::u16string RandomText(std::mt19937& random, int longest)
{
    std::u16string text(std::uniform_int_distribution<std::size_t>(0, static_cast<std::size_t>(longest))(random), u'a');
    for (char16_t& unit : text)
        unit = static_cast<char16_t>(u'a' + random() % 3);
    return text;
}

template <class... Arguments>
std::u16string Formatted(std::u16string_view format, const Arguments&... arguments)
{
    CString text;
    text.Format(format, arguments...);
    return Text(text);
}

} // namespace

TEST(CString, IsOnePointerWide)
{
    EXPECT_EQ(sizeof(CString), sizeof(void*));
}

TEST(CString, EmptyTextsOfEveryOriginAreEmptyAndEndInNul)
{
    for (const CString& text :
         {CString(), CString(u""), CString(static_cast<const char16_t*>(nullptr)), CString(u'x', 0), CString(u'x', -3),
          CString(std::u16string_view()), CString::Join({u"", u""})}) {
        EXPECT_TRUE(text.IsEmpty());
        EXPECT_EQ(text.GetLength(), 0);
        EXPECT_EQ(text.GetString()[0], u'\0');
        EXPECT_EQ(text, CString());
    }
}

TEST(CString, CopiesShareTheTextUntilOneIsChanged)
{
    const CString original = u"shared";
    CString copy = original;
    EXPECT_EQ(copy.GetString(), original.GetString());
    copy += u"!";
    EXPECT_EQ(Text(copy), u"shared!");
    EXPECT_EQ(Text(original), u"shared");
}

TEST(CString, UpperCasingACopyKeepsTheOriginal)
{
    const CString original = u"name";
    CString copy = original;
    copy.MakeUpper();
    EXPECT_EQ(Text(copy), u"NAME");
    EXPECT_EQ(Text(original), u"name");
}

TEST(CString, AssignmentToItselfKeepsTheText)
{
    CString text = u"same";
    CString& alias = text;
    text = alias;
    EXPECT_EQ(Text(text), u"same");
    text = std::move(alias);
    EXPECT_EQ(Text(text), u"same");
}

TEST(CString, MoveLeavesTheSourceEmpty)
{
    CString source = u"text";
    const CString target = std::move(source);
    EXPECT_EQ(Text(target), u"text");
    EXPECT_TRUE(source.IsEmpty()); // NOLINT(bugprone-use-after-move): what holds after a move is the question
}

TEST(CString, AppendsAPartOfItself)
{
    CString text = u"abc";
    std::u16string expected = u"abc";
    for (int i = 0; i < 8; ++i) {
        text += text.View().substr(1);
        expected += expected.substr(1);
    }
    EXPECT_EQ(Text(text), expected);
}

TEST(CString, AnEmptiedStringTakesNewText)
{
    CString text = u"abc";
    text.Empty();
    text += u'x';
    EXPECT_EQ(Text(text), u"x");
}

TEST(CString, KeepsEmbeddedNuls)
{
    const CString text = std::u16string_view(u"a\0b", 3);
    EXPECT_EQ(text.GetLength(), 3);
    EXPECT_NE(text, CString(u"a"));
    EXPECT_EQ(text[2], u'b');
}

TEST(CString, PartsAreCutAtTheEdges)
{
    const CString text = u"abcdef";
    EXPECT_EQ(Text(text.Left(0)), u"");
    EXPECT_EQ(Text(text.Left(2)), u"ab");
    EXPECT_EQ(Text(text.Left(6)), u"abcdef");
    EXPECT_EQ(Text(text.Left(100)), u"abcdef");
    EXPECT_EQ(Text(text.Left(-1)), u"");
    EXPECT_EQ(Text(text.Right(2)), u"ef");
    EXPECT_EQ(Text(text.Right(100)), u"abcdef");
    EXPECT_EQ(Text(text.Right(-1)), u"");
    EXPECT_EQ(Text(text.Mid(4)), u"ef");
    EXPECT_EQ(Text(text.Mid(6)), u"");
    EXPECT_EQ(Text(text.Mid(100)), u"");
    EXPECT_EQ(Text(text.Mid(-5)), u"abcdef");
    EXPECT_EQ(Text(text.Mid(1, 2)), u"bc");
    EXPECT_EQ(Text(text.Mid(4, 100)), u"ef");
    EXPECT_EQ(Text(text.Mid(4, -1)), u"");
    EXPECT_EQ(Text(text.Mid(-1, 2)), u"ab");
    EXPECT_EQ(Text(CString().Mid(0, 1)), u"");
}

TEST(CString, FindGivesMinusOneWhereNothingIsFound)
{
    const CString text = u"abcabc";
    EXPECT_EQ(text.Find(u"bc"), 1);
    EXPECT_EQ(text.Find(u"bc", 2), 4);
    EXPECT_EQ(text.Find(u"bc", 5), -1);
    EXPECT_EQ(text.Find(u"bc", 100), -1);
    EXPECT_EQ(text.Find(u"bc", -1), 1);
    EXPECT_EQ(text.Find(u"", 3), 3);
    EXPECT_EQ(text.ReverseFind(u'a'), 3);
    EXPECT_EQ(text.ReverseFind(u'x'), -1);
    EXPECT_EQ(CString().ReverseFind(u'x'), -1);
}

TEST(CString, ReplaceWorksFromTheStartWithoutOverlap)
{
    CString text = u"aaaaa";
    EXPECT_EQ(text.Replace(u"aa", u"b"), 2);
    EXPECT_EQ(Text(text), u"bba");
    EXPECT_EQ(text.Replace(u"b", u""), 2);
    EXPECT_EQ(Text(text), u"a");
    EXPECT_EQ(text.Replace(u"a", u"aa"), 1);
    EXPECT_EQ(Text(text), u"aa");
    EXPECT_EQ(text.Replace(u"", u"x"), 0);
    EXPECT_EQ(text.Replace(u"A", u"x"), 0);
    EXPECT_EQ(text.Replace(text, text + text), 1);
    EXPECT_EQ(Text(text), u"aaaa");
    EXPECT_EQ(text.Replace(text, u""), 1);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CString, ReplaceAgreesWithAWalkOverTheText)
{
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same cases every time
    for (int i = 0; i < 2000; ++i) {
        const std::u16string whole = RandomText(random, 30);
        const std::u16string find = RandomText(random, 2) + u"a";
        const std::u16string replacement = RandomText(random, 3);
        std::u16string expected;
        for (std::size_t at = 0; at < whole.size();) {
            const bool hit = whole.compare(at, find.size(), find) == 0;
            expected += hit ? replacement : whole.substr(at, 1);
            at += hit ? find.size() : 1;
        }
        CString text(whole);
        text.Replace(find, replacement);
        ASSERT_EQ(Text(text), expected);
    }
}

TEST(CString, JoinsComparesAndHashesLikeTheStandardString)
{
    std::mt19937 random(11); // NOLINT(cert-msc51-cpp): the same cases every time
    for (int i = 0; i < 2000; ++i) {
        const std::u16string a = RandomText(random, 6);
        const std::u16string b = RandomText(random, 6);
        ASSERT_EQ(Text(CString(a) + CString(b)), a + b);
        ASSERT_EQ(Text(CString::Join({a, b, a})), a + b + a);
        ASSERT_EQ(CString(a) == CString(b), a == b);
        ASSERT_EQ(CString(a) < CString(b), a < b);
        ASSERT_EQ(std::hash<CString>()(CString(a)), std::hash<CString>()(a));
    }
}

// The second opinion takes its format from the table of cases.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
TEST(CString, FormatWritesNumbersAsTheCLibraryDoes)
{
    const auto expected = [](const char* format, auto value) {
        char buffer[64];
        const int length = std::snprintf(buffer, sizeof buffer, format, value); // NOLINT
        return Widen(std::string(buffer, static_cast<std::size_t>(length)));
    };
    for (const std::int32_t value : {0, 1, -1, 42, -42, 2147483647, -2147483647 - 1}) {
        const auto bits = static_cast<std::uint32_t>(value);
        EXPECT_EQ(Formatted(u"%d", value), Widen(std::to_string(value)));
        EXPECT_EQ(Formatted(u"%i", value), Widen(std::to_string(value)));
        EXPECT_EQ(Formatted(u"%u", value), Widen(std::to_string(bits)));
        EXPECT_EQ(Formatted(u"%05d", value), expected("%05d", value));
        EXPECT_EQ(Formatted(u"%5d", value), expected("%5d", value));
        EXPECT_EQ(Formatted(u"%08lx", value), expected("%08x", bits));
        EXPECT_EQ(Formatted(u"%X", value), expected("%X", bits));
    }
    for (const std::int64_t value : {std::int64_t{0}, INT64_MIN, INT64_MAX}) {
        EXPECT_EQ(Formatted(u"%lld", value), Widen(std::to_string(value)));
        EXPECT_EQ(Formatted(u"%I64d", value), Widen(std::to_string(value)));
    }
    EXPECT_EQ(Formatted(u"%llu", UINT64_MAX), Widen(std::to_string(UINT64_MAX)));
}
#pragma GCC diagnostic pop

TEST(CString, FormatPutsTextsInOrderAndNeverReadsThem)
{
    EXPECT_EQ(Formatted(u"%s|%5s|%s", CString(u"a%s"), u"é", std::u16string_view(u"%d")), u"a%s|    é|%d");
    CString text = u"ab";
    text.Format(u"%s%s", text, text);
    EXPECT_EQ(Text(text), u"abab");
}

TEST(CString, FormatKeepsInvalidConversions)
{
    EXPECT_EQ(Formatted(u"%d %s"), u"%d %s");
    EXPECT_EQ(Formatted(u"100%"), u"100%");
    EXPECT_EQ(Formatted(u"%%d"), u"%d");
    EXPECT_EQ(Formatted(u"%5%"), u"%5%");
    EXPECT_EQ(Formatted(u"%q%"), u"%q%");
    EXPECT_EQ(Formatted(u"%0"), u"%0");
    EXPECT_EQ(Formatted(u"%d|%s", u"text", 5), u"%d|text");
}

TEST(CString, AnImmenseWidthIsBounded)
{
    const std::u16string text = Formatted(u"%099999999999999999999d", 1);
    EXPECT_LT(text.size(), 2000U);
    EXPECT_EQ(text.back(), u'1');
}

TEST(CString, CompareNoCaseIgnoresOnlyCase)
{
    EXPECT_NE(CString(u"Straße").CompareNoCase(u"sTRASSE"), 0);
    EXPECT_EQ(CString(u"ÄÖÜ.Jpg").CompareNoCase(u"äöü.jPG"), 0);
    EXPECT_LT(CString(u"a").CompareNoCase(u"B"), 0);
    EXPECT_GT(CString(u"b").CompareNoCase(u"A"), 0);
    EXPECT_LT(CString().CompareNoCase(u"a"), 0);
}

TEST(CString, CopiesMadeByManyThreadsKeepTheTextAlive)
{
    const CString shared(u'x', 1000);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([copy = shared]() mutable {
            for (int turn = 0; turn < 20000; ++turn) {
                CString mine = copy;
                copy = mine;
                if (turn % 1000 == 0)
                    mine += u"y";
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(shared, CString(u'x', 1000));
}

TEST(CString, ALongRunOfAppendsKeepsEveryUnit)
{
    CString text;
    for (int i = 0; i < 1'000'000; ++i)
        text += u'x';
    EXPECT_EQ(text, CString(u'x', 1'000'000));
}

TEST(CString, AssignKeepsTheMemoryOfOneOwnerAlone)
{
    CString text = u"a long name";
    const char16_t* const memory = text.GetString();
    text.Assign(u"short");
    EXPECT_EQ(text, u"short");
    EXPECT_EQ(text.GetString(), memory);
    EXPECT_EQ(memory[5], u'\0');
    text.Assign(u"as long now");
    EXPECT_EQ(text, u"as long now");
    EXPECT_EQ(text.GetString(), memory);

    const CString copy = text;
    text.Assign(u"other");
    EXPECT_EQ(copy, u"as long now");
    EXPECT_EQ(text, u"other");
    text.Assign(u"longer than any before");
    EXPECT_EQ(text, u"longer than any before");
    text.Assign({});
    EXPECT_TRUE(text.IsEmpty());
    text.Assign(u"a");
    EXPECT_EQ(text, u"a");
}
