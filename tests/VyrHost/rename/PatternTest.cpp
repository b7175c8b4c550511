// Patterns: what they match, and what is put in for it.
#include "RuleChain.h"

#include <VyrHost/rename/Pattern.h>
#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/Errors.h>

#include <gmock/gmock.h>
#include <tests/support/Describe.h>

#include <string>

using namespace VyrHost::Rename;
using namespace VyrTests;
using testing::HasSubstr;
using VyrHost::Text::UsageError;

namespace {

/// What becomes of the file `name` without an extension, without its folder; "!" for a fault.
CString Replaced(const CString& name, const CString& find, const CString& with,
                 const PatternRuleSettings& settings = {})
{
    const CString made = Apply(PatternRules(find, with, settings), FileSubject(name, u""));
    return made == u"!" ? made : made.Mid(3);
}

/// What is said of a pattern and the text that is put in for it; empty when they are sound.
std::string MistakeIn(const CString& find, const CString& with)
{
    try {
        (void)PatternRules(find, with, {});
    } catch (const UsageError& error) {
        return error.what();
    }
    return {};
}

} // namespace

TEST(Pattern, ReplacesEveryMatchByItsGroups)
{
    EXPECT_EQ(Replaced(u"Artist - Title", u"^(.+) - (.+)$", u"$2 - $1"), u"Title - Artist");
    EXPECT_EQ(Replaced(u"05.01.2024 a 24.12.2023", u"(\\d\\d)\\.(\\d\\d)\\.(\\d{4})", u"$3-$2-$1"),
              u"2024-01-05 a 2023-12-24");
    EXPECT_EQ(Replaced(u"2024 May", u"(?<year>\\d+) (?<month>\\w+)", u"${month}_${year}"), u"May_2024");
    EXPECT_EQ(Replaced(u"abc", u"b", u"[$&$0${0}]"), u"a[bbb]c");
    EXPECT_EQ(Replaced(u"a1", u"(a)1", u"${1}0\\1"), u"a0a");
    EXPECT_EQ(Replaced(u"ab", u"(a)|(b)", u"<$1-$2>"), u"<a-><-b>");
    EXPECT_EQ(Replaced(u"00017 x", u"^0*(\\d+) *", u""), u"x");
    EXPECT_EQ(Replaced(u"abc", u"x", u"y"), u"abc");
}

TEST(Pattern, KnowsLookAroundAndLazyQuantifiers)
{
    EXPECT_EQ(Replaced(u"a1b22", u"(?<=\\d)(?=\\D|$)", u"_"), u"a1_b22_");
    EXPECT_EQ(Replaced(u"(a)(b)", u"\\(.*?\\)", u"x"), u"xx");
    EXPECT_EQ(Replaced(u"(a)(b)", u"\\(.*\\)", u"x"), u"x");
    EXPECT_EQ(Replaced(u"foobar", u"foo\\Kbar", u"X"), u"fooX");
}

TEST(Pattern, FindsEmptyMatchesAsPerlDoes)
{
    // perl -e '$_ = "baac"; s/a*/x/g; print'
    EXPECT_EQ(Replaced(u"baac", u"a*", u"x"), u"xbxxcx");
    EXPECT_EQ(Replaced(u"ab", u"(?=)", u"x"), u"xaxbx");
}

TEST(Pattern, ConvertsLetterCase)
{
    EXPECT_EQ(Replaced(u"hello world", u"(\\w+) (\\w+)", u"\\U$1\\E $2"), u"HELLO world");
    EXPECT_EQ(Replaced(u"hELLO wORLD", u"\\w+", u"\\u\\L$&"), u"Hello World");
    EXPECT_EQ(Replaced(u"hELLO wORLD", u"\\w+", u"\\L\\u$&"), u"Hello World");
    EXPECT_EQ(Replaced(u"HELLO", u"\\w+", u"\\l$&"), u"hELLO");
    EXPECT_EQ(Replaced(u"ab", u"(x?)(b)", u"\\u$1$2c\\Ud"), u"aBcD");
    EXPECT_EQ(Replaced(u"\u00e9t\u00e9 \u0436", u".+", u"\\U$&"), u"\u00c9T\u00c9 \u0416");
}

TEST(Pattern, SeesCharactersAndNeverHalvesOfOne)
{
    const CString face = u"\U0001F600";
    EXPECT_EQ(Replaced(face + u"a", u"^.", u""), u"a");
    EXPECT_EQ(Replaced(face + face, u".", u"x"), u"xx");
    EXPECT_EQ(Replaced(face, u"(?=)", u"-"), u"-" + face + u"-");
    EXPECT_THAT(MistakeIn(u"\\C", u""), HasSubstr("\\C"));
    // A byte that is no text stays.
    const CString broken(char16_t{0xDCFF}, 1);
    EXPECT_EQ(Replaced(u"a" + broken + u"b", u".", u"x"), u"x" + broken + u"x");
}

TEST(Pattern, TakesLettersAndDigitsOfEveryScript)
{
    EXPECT_EQ(Replaced(u"\u0416\u0443\u043a 7", u"\\w+", u"x"), u"x x");
    EXPECT_EQ(Replaced(u"\u00c9t\u00e9", u"\u00e9", u"e", {.ignoresCase = true}), u"ete");
    EXPECT_EQ(Replaced(u"\u00c9t\u00e9", u"\u00e9", u"e"), u"\u00c9te");
}

TEST(Pattern, ReplacesTheMatchWithTheGivenNumber)
{
    EXPECT_EQ(Replaced(u"a-b-c-d", u"-", u"+", {.nth = 1}), u"a+b-c-d");
    EXPECT_EQ(Replaced(u"a-b-c-d", u"-", u"+", {.nth = 2}), u"a-b+c-d");
    EXPECT_EQ(Replaced(u"a-b-c-d", u"-", u"+", {.nth = -1}), u"a-b-c+d");
    EXPECT_EQ(Replaced(u"a-b-c-d", u"-", u"+", {.nth = -3}), u"a+b-c-d");
    EXPECT_EQ(Replaced(u"a-b-c-d", u"-", u"+", {.nth = 4}), u"a-b-c-d");
    EXPECT_EQ(Replaced(u"a-b-c-d", u"-", u"+", {.nth = -4}), u"a-b-c-d");
}

TEST(Pattern, WorksOnTheNameTheExtensionOrBoth)
{
    const Subject file = FileSubject(u"a.b", u".jpeg");
    const auto in = [](NamePart part) {
        return PatternRuleSettings{.part = part};
    };
    EXPECT_EQ(Apply(PatternRules(u"e", u"x", {}), file), u"/d/a.b.jpeg");
    EXPECT_EQ(Apply(PatternRules(u"^jpe?g$", u"JPG", in(NamePart::Extension)), file), u"/d/a.b.JPG");
    EXPECT_EQ(Apply(PatternRules(u".+", u"", in(NamePart::Extension)), file), u"/d/a.b");
    EXPECT_EQ(Apply(PatternRules(u"^(.+)\\.(.+)\\.(.+)$", u"$1.$3.$2", in(NamePart::All)), file), u"/d/a.jpeg.b");
    // What is the extension after it is the extension of the rules behind it.
    EXPECT_EQ(Apply(Chain(PatternRules(u"\\.jpeg$", u"", in(NamePart::All)), SuffixRules(u"!")), file), u"/d/a!.b");

    Subject folder = FileSubject(u"a.b", u"");
    folder.isFolder = true;
    EXPECT_EQ(Apply(Chain(PatternRules(u"a", u"c", in(NamePart::All)), SuffixRules(u"!")), folder), u"/d/c.b!");
    EXPECT_EQ(Apply(PatternRules(u"^$", u"txt", in(NamePart::Extension)), folder), u"/d/a.b");
}

TEST(Pattern, KeepsTheGroupsOfTheLastMatchForRulesBehindIt)
{
    const Rules rules = PatternRules(u"(?<letter>[a-z])(\\d)?", u"x", {});
    Subject subject = FileSubject(u"a1b2c", u"");
    ASSERT_EQ(rules.front()->Apply(subject), Reason::None);
    EXPECT_EQ(subject.name, u"xxx");
    EXPECT_EQ(subject.groups.Find(0), u"c");
    EXPECT_EQ(subject.groups.Find(u"letter"), u"c");
    EXPECT_EQ(subject.groups.Find(2), u"");
    EXPECT_EQ(subject.groups.Find(3), std::nullopt);

    subject.name = u"12";
    ASSERT_EQ(rules.front()->Apply(subject), Reason::None);
    EXPECT_FALSE(subject.groups.HasMatched());
}

TEST(Pattern, ThatRunsAwayIsAFaultOfTheName)
{
    for (const auto& [find, name] : {std::pair<CString, CString>{u"^(a+)+$", CString(u'a', 200) + u"!"},
                                     {u"(x+x+)+[yz]", CString(u'x', 200)},
                                     {u"^(([a-z])+.)+[A-Z]([a-z])+$", CString(u'a', 200)}}) {
        const Rules rules = PatternRules(find, u"b", {});
        Subject subject = FileSubject(name, u"");
        EXPECT_EQ(rules.front()->Apply(subject), Reason::PatternGaveUp);
        EXPECT_THAT(std::string(subject.cause.View().begin(), subject.cause.View().end()), HasSubstr("limit"));
        // Others are not touched by it.
        Subject next = FileSubject(u"Q", u"");
        EXPECT_EQ(rules.front()->Apply(next), Reason::None);
    }
    EXPECT_EQ(Replaced(CString(u'a', 200) + u"!", u"^(a+)+$", u"b", {.nth = -1}), u"!");
}

TEST(Pattern, ThatMakesANameOfAnyLengthIsAFaultOfTheName)
{
    Rules rules;
    for (int times = 0; times < 40; ++times)
        rules = Chain(std::move(rules), PatternRules(u".+", u"$&$&", {}));
    EXPECT_EQ(Apply(rules, FileSubject(u"ab", u"")), u"!");
}

TEST(Pattern, ThatDoesNotCompileIsRefusedWithAMarkUnderThePlace)
{
    EXPECT_EQ(MistakeIn(u"a(b", u""), "--regex: missing closing parenthesis\n    a(b\n       ^");
    EXPECT_THAT(MistakeIn(u"ab*+?", u""), HasSubstr("\n    ab*+?\n"));
    // The mark stands under the place also behind wide characters and those without a width.
    EXPECT_EQ(MistakeIn(u"\u4e2de\u0301(", u""), "--regex: missing closing parenthesis\n    \u4e2de\u0301(\n        ^");
    EXPECT_EQ(MistakeIn(u"", u"x"), "--regex: there is no pattern to look for");
}

TEST(Pattern, WithGroupsThatAreNotThereIsRefusedWithAMarkUnderThePlace)
{
    EXPECT_EQ(MistakeIn(u"a", u"x$1"), "--regex: the pattern has no group 1, since it has none in brackets\n"
                                       "    x$1\n      ^");
    EXPECT_EQ(MistakeIn(u"(a)", u"$2"), "--regex: the pattern has no group 2, only one\n    $2\n     ^");
    EXPECT_THAT(MistakeIn(u"(a)(b)", u"${99999999999999999999}"), HasSubstr("only 2"));
    EXPECT_EQ(MistakeIn(u"(?<year>a)", u"${yaer}"), "--regex: the pattern has no group yaer\n    ${yaer}\n      ^");
    EXPECT_THAT(MistakeIn(u"(?<year>a)", u"$year"), HasSubstr("${name}"));
    EXPECT_THAT(MistakeIn(u"a", u"${"), HasSubstr("braces hold"));
    EXPECT_THAT(MistakeIn(u"a", u"\\"), HasSubstr("backslash"));
    EXPECT_THAT(MistakeIn(u"a", u"\\q"), HasSubstr("backslash"));
}

TEST(Pattern, PutsInSignsAsText)
{
    EXPECT_EQ(Replaced(u"a", u"a", u"$$1 \\$ $ $-"), u"$1 $ $ $-");
    EXPECT_THAT(MistakeIn(u"a", u"b/c"), HasSubstr("separator"));
}

TEST(Pattern, TakesWordsForItsSettings)
{
    EXPECT_EQ(ParseNth(u"3"), 3);
    EXPECT_EQ(ParseNth(u"-2"), -2);
    for (const CString text : {u"0", u"-0", u"", u"x", u"--1"})
        EXPECT_THROW((void)ParseNth(text), UsageError);
    EXPECT_EQ(ParseNamePart(u"all"), NamePart::All);
    EXPECT_THROW((void)ParseNamePart(u"folder"), UsageError);
}
