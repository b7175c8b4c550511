// Options as a text.
#include <VyrHost/rename/OptionLines.h>

#include <VyrHost/text/Errors.h>

#include <gmock/gmock.h>
#include <tests/support/Describe.h>

using namespace VyrHost::Rename;
using testing::HasSubstr;
using VyrHost::Text::UsageError;
using Words = std::vector<CString>;

namespace {

std::vector<Words> WordsIn(std::string_view text)
{
    std::vector<Words> words;
    for (const OptionLine& line : ReadOptionLines(text))
        words.push_back(line.words);
    return words;
}

std::string MistakeIn(std::string_view text)
{
    try {
        (void)ReadOptionLines(text);
    } catch (const UsageError& error) {
        return error.what();
    }
    return {};
}

} // namespace

TEST(OptionLines, AreWordsBetweenBlanksAndInQuotes)
{
    EXPECT_EQ(WordsIn("--regex \"^(.+) - (.+)$\"\t\"$2 - \\$1\"\n--trim\n"),
              (std::vector<Words>{{u"--regex", u"^(.+) - (.+)$", u"$2 - \\$1"}, {u"--trim"}}));
    EXPECT_EQ(WordsIn("--replace \"a\"\"b\" \"\""), (std::vector<Words>{{u"--replace", u"a\"b", u""}}));
    EXPECT_EQ(WordsIn("  --prefix x\"y  "), (std::vector<Words>{{u"--prefix", u"x\"y"}}));
}

TEST(OptionLines, SkipRemarksAndEmptyLinesOfEitherSystem)
{
    EXPECT_EQ(WordsIn("\xEF\xBB\xBF# titles\r\n\r\n  # more\n--case title\r\n--prefix #"),
              (std::vector<Words>{{u"--case", u"title"}, {u"--prefix", u"#"}}));
    EXPECT_EQ(WordsIn(""), std::vector<Words>());
    EXPECT_EQ(ReadOptionLines("#\n\n--trim").front().number, 3U);
}

TEST(OptionLines, AreWrittenSoThatTheyAreReadTheSame)
{
    for (const Words& words :
         std::vector<Words>{{u"--trim"},
                            {u"--prefix", u""},
                            {u"--prefix", u"a b"},
                            {u"\uFEFF", u"\uFEFFa"},
                            {u"--prefix", u"\"", u"#", u"\\", u"\t", u"\"\"x"},
                            {u"--prefix", u"\u00e9\u4e2d\U0001F600", CString(char16_t{0xDCFF}, 1)}})
        EXPECT_EQ(WordsIn(WriteOptionLine(words)), std::vector<Words>{words});
    EXPECT_EQ(WriteOptionLine({u"--regex", u"a b", u"$1"}), "--regex \"a b\" $1\n");
    for (const CString text : {u"a\nb", u"a\rb"})
        EXPECT_THROW((void)WriteOptionLine({u"--prefix", text}), UsageError);
}

TEST(OptionLines, ThatMakeNoSenseAreRefusedWithTheirNumber)
{
    EXPECT_EQ(MistakeIn("--trim\n--prefix \"a"), "line 2: a double quote is not closed");
    EXPECT_THAT(MistakeIn("--prefix \"a\"b"), HasSubstr("line 1: a blank is missing"));
    EXPECT_THAT(MistakeIn(std::string_view("\n--prefix \0", 11)), HasSubstr("line 2: it holds a NUL"));
    EXPECT_THAT(MistakeIn(std::string(2'000'000, '\n')), HasSubstr("1 MiB"));
}
