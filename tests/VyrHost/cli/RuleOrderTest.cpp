// Tests of the program: rules of every kind, alone and one after the other.
#include "VyrProgram.h"

#include <gmock/gmock.h>

using namespace VyrTests;
using testing::HasSubstr;

namespace {

class RuleOrder : public VyrProgram
{
protected:
    /// The result of the rules for the one entry `name`; "=" where it does not change.
    [[nodiscard]] std::string Made(const std::vector<CString>& rules, const CString& name) const
    {
        std::vector<CString> call = rules;
        call.insert(call.end(), {u"--", name});
        const std::string output = Rename(call).output;
        const std::size_t arrow = output.find("  ->  ");
        if (arrow == std::string::npos)
            return output.find(" unchanged\n") == std::string::npos ? output : "=";
        return output.substr(arrow + 6, output.find('\n') - arrow - 6);
    }
};

} // namespace

TEST_F(RuleOrder, EveryRuleGivesTheDocumentedName)
{
    WriteNamed({u"abcdef.Txt"});
    struct Case
    {
        std::vector<CString> rule;
        const char* made;
    };
    for (const auto& [rule, made] :
         {Case{{u"--number", u"n##"}, "n01.Txt"},
          Case{{u"--number", u"<Name>-#"}, "abcdef-1.Txt"},
          Case{{u"--number", u"#-<Name>", u"--start=-5", u"--digits=3"}, "00-5-abcdef.Txt"},
          Case{{u"--number", u"x<Number>#", u"--start", u"999", u"--digits", u"2"}, "x999#.Txt"},
          Case{{u"--replace", u"c", u"CC"}, "abCCdef.Txt"},
          Case{{u"--replace", u"C", u"x"}, "="},
          Case{{u"--replace", u"Txt", u"x"}, "="},

          Case{{u"--regex", u"([bd])(.)", u"$2$1"}, "acbedf.Txt"},
          Case{{u"--regex", u"[A-C]", u"x"}, "="},
          Case{{u"--regex", u"[A-C]", u"x", u"--ignore-case"}, "xxxdef.Txt"},
          Case{{u"--regex", u"[a-c]", u"x", u"--first-only"}, "xbcdef.Txt"},
          Case{{u"--regex", u"[a-c]", u"x", u"--nth", u"-1"}, "abxdef.Txt"},
          Case{{u"--regex", u"t", u"T", u"--regex-in", u"extension"}, "abcdef.TxT"},
          Case{{u"--regex", u"f.T", u"-", u"--regex-in", u"all"}, "abcde-xt"},

          Case{{u"--prefix", u"-"}, "-abcdef.Txt"},
          Case{{u"--suffix", u"."}, "abcdef..Txt"},
          Case{{u"--insert", u"3:X"}, "abcXdef.Txt"},
          Case{{u"--insert", u"6:X"}, "abcdefX.Txt"},
          Case{{u"--insert", u"-0:X"}, "abcdefX.Txt"},
          Case{{u"--insert", u"-6:X"}, "Xabcdef.Txt"},

          Case{{u"--delete", u"2:3"}, "abf.Txt"},
          Case{{u"--delete", u"2:4"}, "ab.Txt"},
          Case{{u"--delete", u"-1:2"}, "abcf.Txt"},
          Case{{u"--delete-first", u"2"}, "cdef.Txt"},
          Case{{u"--delete-last", u"2"}, "abcd.Txt"},
          Case{{u"--keep-first", u"2"}, "ab.Txt"},
          Case{{u"--keep-last", u"2"}, "ef.Txt"},
          Case{{u"--keep-last", u"7"}, "="},
          Case{{u"--case", u"first"}, "Abcdef.Txt"},
          Case{{u"--case", u"upper"}, "ABCDEF.Txt"},
          Case{{u"--case", u"lower"}, "="},
          Case{{u"--extension", u"jpg"}, "abcdef.jpg"},
          Case{{u"--extension", u".tar.gz"}, "abcdef.tar.gz"},
          Case{{u"--extension-case", u"upper"}, "abcdef.TXT"},
          Case{{u"--extension-case", u"lower"}, "abcdef.txt"},
          Case{{u"--drop-extension"}, "abcdef"}})
        EXPECT_EQ(Made(rule, u"abcdef.Txt"), made) << VyrPlatform::Encoding::ToUtf8(rule.front());
}

TEST_F(RuleOrder, EachRuleWorksOnTheResultOfTheOneBefore)
{
    WriteNamed({u"img 01.JPEG"});
    EXPECT_EQ(Made({u"--delete-first", u"4", u"--number", u"<Name>_##", u"--start", u"7", u"--replace", u"_", u"-",
                    u"--prefix", u"scan", u"--case", u"first", u"--extension", u"jpg", u"--extension-case", u"upper"},
                   u"img 01.JPEG"),
              "Scan01-07.JPG");
    // A place is a position in the result of the rule before.
    EXPECT_EQ(Made({u"--suffix", u"xyz", u"--insert", u"9:!"}, u"img 01.JPEG"), "img 01xyz!.JPEG");
    EXPECT_THAT(Made({u"--keep-first", u"3", u"--insert", u"4:!", u"--case", u"upper"}, u"img 01.JPEG"),
                HasSubstr("refused: the place or count is beyond the name: the name has 3 characters\n"));
    EXPECT_EQ(Made({u"--drop-extension", u"--suffix", u".raw"}, u"img 01.JPEG"), "img 01.raw");
}

TEST_F(RuleOrder, AnEmptyNameBetweenRulesIsNoFault)
{
    WriteNamed({u"ab.c"});
    EXPECT_EQ(Made({u"--keep-first", u"0", u"--prefix", u"new"}, u"ab.c"), "new.c");
    EXPECT_THAT(Made({u"--keep-first", u"0"}, u"ab.c"), HasSubstr("refused: the new name would be empty\n"));
}

TEST_F(RuleOrder, ExtensionRulesDoNotChangeFolders)
{
    m_folder.MakeFolder(u"my.folder");
    EXPECT_EQ(Made({u"--extension", u"jpg"}, u"my.folder"), "=");
    EXPECT_EQ(Made({u"--extension-case", u"upper"}, u"my.folder"), "=");
    EXPECT_EQ(Made({u"--drop-extension"}, u"my.folder"), "=");
    EXPECT_EQ(Made({u"--extension", u"jpg", u"--suffix", u"!", u"--case", u"upper"}, u"my.folder"), "MY.FOLDER!");
    EXPECT_EQ(Made({u"--keep-last", u"6"}, u"my.folder"), "folder");
}

TEST_F(RuleOrder, APatternThatRunsAwayIsRefusedInItsRow)
{
    const std::u16string runsAway = std::u16string(60, u'a') + u"!";
    WriteNamed({u"aaa", runsAway});
    const ProgramResult result = Rename({u"--regex", u"^(a+)+$", u"b", u"-r", u"."});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("aaa "));
    EXPECT_THAT(result.output, HasSubstr("->  b\n"));
    EXPECT_THAT(result.output, HasSubstr("refused: the pattern is too complex for this name: match limit exceeded\n"));
}

TEST_F(RuleOrder, IgnoringCaseBelongsToTheReplacementOrPatternBeforeIt)
{
    WriteNamed({u"aab"});
    EXPECT_EQ(Made({u"--replace", u"A", u"x", u"--ignore-case", u"--replace", u"B", u"y"}, u"aab"), "xxb");
    EXPECT_EQ(Made({u"--regex", u"A", u"x", u"--replace", u"B", u"y", u"--ignore-case"}, u"aab"), "aay");
}

TEST_F(RuleOrder, SettingsOfAPatternBelongToTheOneBeforeThem)
{
    WriteNamed({u"aab"});
    EXPECT_EQ(Made({u"--regex", u"a", u"x", u"--first-only", u"--regex", u"B", u"y", u"--ignore-case"}, u"aab"), "xay");
    for (const std::vector<CString>& twice :
         std::vector<std::vector<CString>>{{u"--first-only", u"--first-only"},
                                           {u"--first-only", u"--nth=2"},
                                           {u"--ignore-case", u"--ignore-case"},
                                           {u"--regex-in=all", u"--regex-in=all"}}) {
        std::vector<CString> call = {u"--regex", u"a", u"b"};
        call.insert(call.end(), twice.begin(), twice.end());
        call.emplace_back(u"aab");
        const ProgramResult result = Rename(call);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_THAT(result.errors, AllOf(HasSubstr(" is given twice for one "), HasSubstr("--regex\n")));
    }
    EXPECT_EQ(Rename({u"--prefix", u"x", u"--ignore-case", u"aab"}).exitCode, 2);
}
