// Tests of the program: wrong calls are refused with the reason before anything is changed.
#include "VyrProgram.h"

#include <gmock/gmock.h>

using namespace VyrTests;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

class BadInput : public VyrProgram
{
protected:
    /// Expects that "vyr rename --apply" with `call` is refused with `reason`, and that every file stays.
    void ExpectRefused(const std::vector<CString>& call, const std::string& reason, const std::string& input = {}) const
    {
        const std::map<std::string, std::string> before = Files();
        std::vector<CString> all = {u"--apply"};
        all.insert(all.end(), call.begin(), call.end());
        const ProgramResult result = Rename(all, input);
        std::string shown;
        for (const CString& argument : call)
            shown += " '" + VyrPlatform::Encoding::ToUtf8(argument) + "'";
        EXPECT_EQ(result.exitCode, 2) << shown << "\n" << result.output;
        EXPECT_THAT(result.output, IsEmpty()) << shown;
        EXPECT_THAT(result.errors, AllOf(StartsWith("vyr: "), HasSubstr(reason))) << shown;
        EXPECT_EQ(Files(), before) << shown;
    }
};

} // namespace

TEST_F(BadInput, RulesThatDoNothing)
{
    WriteNamed({u"a"});
    ExpectRefused({u"a"}, "no rule is given");
    for (const char16_t* const option :
         {u"--number", u"--date", u"--prefix", u"--suffix", u"--extension", u"--insert", u"--delete", u"--delete-first",
          u"--keep-last", u"--case", u"--extension-case"})
        ExpectRefused({option, u"", u"a"}, VyrPlatform::Encoding::ToUtf8(option));
    ExpectRefused({u"--replace", u"", u"x", u"a"}, "--replace");
    ExpectRefused({u"--insert", u"0:", u"a"}, "--insert");
    ExpectRefused({u"--delete", u"0:0", u"a"}, "--delete");
    ExpectRefused({u"--delete-first", u"0", u"a"}, "--delete-first");
    ExpectRefused({u"--date", u"<Name>", u"a"}, "no date");
    ExpectRefused({u"--number", u"no place", u"a"}, "###");
}

TEST_F(BadInput, NumbersThatAreNone)
{
    WriteNamed({u"a"});
    for (const char16_t* const number : {u"", u"1x", u"1.5", u"+1", u"99999999999"}) {
        ExpectRefused({u"--number", u"#", u"--start", number, u"a"}, "--start");
        ExpectRefused({u"--number", u"#", u"--digits", number, u"a"}, "--digits");
        ExpectRefused({u"--keep-first", number, u"a"}, "--keep-first");
        ExpectRefused({u"--suffix", u"!", u"--conflict-start", number, u"a"}, "--conflict-start");
        ExpectRefused({u"--suffix", u"!", u"--conflict-digits", number, u"a"}, "--conflict-digits");
    }
    ExpectRefused({u"--suffix", u"!", u"--conflict-digits", u"256", u"a"}, "from 0 to 255");
    ExpectRefused({u"--number", u"#", u"--digits", u"256", u"a"}, "--digits '256': a whole number from 0 to 255 ");
    for (const char16_t* const width : {u"-1", u"1000", u"x"})
        ExpectRefused({u"--pad", width, u"a"}, "': a whole number from 0 to 255 is expected");
    ExpectRefused({u"--pad", u"mid:4", u"a"}, "--pad 'mid:4': only first: or last: may stand before the number");
    ExpectRefused({u"--regex", u"a", u"b", u"--nth", u"0", u"a"}, "--nth '0': 1 is the first match and -1 the last");
    ExpectRefused({u"--regex", u"a", u"b", u"--nth", u"x", u"a"}, "from -2147483647 to 2147483647");
    ExpectRefused({u"--keep-first", u"99999999999", u"a"}, "from 0 to 2147483647");
    ExpectRefused({u"--delete-last", u"-1", u"a"}, "from 1 to 2147483647");
    for (const char16_t* const batch : {u"", u"0", u"-1", u"x", u"99999999999"}) {
        const ProgramResult result = Run({u"undo", u"--", batch});
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_THAT(result.errors, StartsWith("vyr: BATCH '"));
    }
}

TEST_F(BadInput, NumbersThatEndBeforeTheList)
{
    WriteNamed({u"a", u"b", u"d/c", u"d/e"});
    ExpectRefused({u"--number", u"#", u"--start", u"2147483647", u"a", u"b"}, "would count to 2147483648; numbers go");
    ExpectRefused({u"--number", u"#", u"--step=-2147483648", u"a", u"b", u"d/c"}, "would count to -4294967295;");
    // Each folder is counted on its own.
    const ProgramResult result =
        Rename({u"--number", u"#", u"--start=2147483646", u"--number-per-folder", u"a", u"b", u"d/c", u"d/e"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("b    ->  2147483647\n"));
}

TEST_F(BadInput, OptionsThatAreGivenTooOften)
{
    WriteNamed({u"a"});
    ExpectRefused({u"--suffix", u"!", u"--into", u"x", u"--into", u"y", u"a"}, "--into is given more than once\n");
    ExpectRefused({u"--suffix", u"!", u"--include", u"a", u"--include", u"b", u"--sort=name", u"--sort", u"size", u"a"},
                  "--sort is given more than once\n");
    const ProgramResult result = Run({u"times", u"--set-modified", u"2024-01-05", u"--set-modified=2024-01-06", u"a"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, StartsWith("vyr: --set-modified is given more than once\n"));
}

TEST_F(BadInput, EmptyOptions)
{
    WriteNamed({u"a"});
    for (const char16_t* const option : {u"--pairs", u"--sort", u"--on-conflict", u"--conflict-pattern",
                                         u"--conflict-position", u"--conflict-start", u"--conflict-step"})
        ExpectRefused({u"--suffix", u"!", option, u"", u"a"}, VyrPlatform::Encoding::ToUtf8(option));
    ExpectRefused({u"--suffix", u"!", u"-r", u"--only", u"", u"."}, "--only");
    ExpectRefused({u"--date", u"yyyy", u"--date-from", u"", u"a"}, "--date-from");
    ExpectRefused({u"--suffix", u"!", u""}, "no name that can be changed");
}

TEST_F(BadInput, PatternsThatCanNeverGiveAFreeName)
{
    WriteNamed({u"a1", u"a2"});
    for (const char16_t* const pattern : {u"", u"x", u" ()"})
        ExpectRefused({u"--keep-first", u"1", u"--conflict-pattern", pattern, u"a1", u"a2"}, "free name");
    ExpectRefused({u"--keep-first", u"1", u"--conflict-step", u"0", u"a1", u"a2"}, "free name");
}

TEST_F(BadInput, SeparatorsAndNulsInNames)
{
    WriteNamed({u"a"});
    for (const char16_t* const option : {u"--prefix", u"--suffix", u"--date", u"--extension"})
        ExpectRefused({option, u"x/y", u"a"}, "separator");
    ExpectRefused({u"--number", u"#/#", u"a"}, "--number");
    ExpectRefused({u"--insert", u"0:/", u"a"}, "separator");
    ExpectRefused({u"--replace", u"a", u"/", u"a"}, "separator");
    ExpectRefused({u"--suffix", u"!", u"--conflict-pattern", u"/?", u"a"}, "separator");
    ExpectRefused({u"--pairs", u"-"}, "NUL", std::string("a,x\0y\n", 6));
}

TEST_F(BadInput, FoldersWithoutANameOfTheirOwn)
{
    WriteNamed({u"a"});
    for (const char16_t* const format : {u"<Folder><Name>", u"yyyy<Folder><Folder><Name>", u"..<Folder><Name>",
                                         u".<Folder>yyyy", u"'..'<Folder>yyyy", u"yyyy<Folder>..<Folder><Name>"})
        ExpectRefused({u"--date", format, u"a"}, "<Folder>");
    ExpectRefused({u"--date", u"yyyy<Folder>", u"a"}, "<Folder>");
    ExpectRefused({u"--date", u"<Name><Folder>yyyy", u"a"}, "<Folder>");
}

TEST_F(BadInput, LettersAndTokensThatMeanNothing)
{
    WriteNamed({u"a"});
    ExpectRefused({u"--date", u"YYYY-MM-DD", u"a"}, "no part of a date is called Y; yyyy-MM-dd");
    ExpectRefused({u"--date", u"%Y", u"a"}, "a percent sign is text here");
    ExpectRefused({u"--date", u"yyyy <Mkae>", u"a"}, "it knows no <Mkae>, only <Name>");
    ExpectRefused({u"--date", u"yyyy <Parent>", u"a"}, "; --name knows others;");
    ExpectRefused({u"--date", u"yyyy/MM", u"a"}, "folder separator or a NUL; in --date and --name, <Folder> ends");
    ExpectRefused({u"--number", u"<Nmae> #", u"a"}, "it knows no <Nmae>, only <Name>, <Number>");
    ExpectRefused({u"--number", u"<Parent> #", u"a"}, "; --name knows others, \"vyr help tokens\" has them");
    for (const char16_t* const more : {u"<Name:3> #", u"<Name?x> #", u"<Name|upper> #", u"<5:2> #"})
        ExpectRefused({u"--number", more, u"a"}, "; --name knows others");
}

TEST_F(BadInput, ARuleWithoutAPath)
{
    ExpectRefused({u"--prefix", u"x", u"--recursive"}, "named; -r . takes the files in this folder and below");
    EXPECT_THAT(Run({u"properties"}).errors, HasSubstr("no document is named; -r . takes those"));
}

TEST_F(BadInput, UnknownWords)
{
    WriteNamed({u"a"});
    ExpectRefused({u"--sufix", u"!", u"a"}, "vyr rename has no option '--sufix'; did you mean --suffix?");
    ExpectRefused({u"--recursiv", u"--suffix", u"!", u"."}, "did you mean --recursive?");
    ExpectRefused({u"--dgiits=3", u"--number", u"#", u"a"}, "'--dgiits'; did you mean --digits?");
    ExpectRefused({u"--no-such-thing-at-all", u"a"}, "vyr rename has no option '--no-such-thing-at-all'\n");
    ExpectRefused({u"-x", u"a"}, "vyr rename has no option '-x'\n");
    // The word behind an option is its value, whatever it looks like.
    EXPECT_EQ(Rename({u"--suffix", u"--sufix", u"a"}).exitCode, 0);
    const std::vector<std::pair<std::vector<CString>, std::string>> calls = {
        {{u"renmae", u"a"},
         "vyr: there is no command 'renmae'; did you mean rename?\nvyr --help lists the commands.\n"},
        {{u"xyzzy"}, "vyr: there is no command 'xyzzy'\nvyr --help lists the commands.\n"},
        {{u"--hlep"}, "vyr: vyr has no option '--hlep'; did you mean --help?\nvyr --help lists its options.\n"},
        {{u"undo", u"--lits"},
         "vyr: vyr undo has no option '--lits'; did you mean --list?\nvyr undo --help lists its "
         "options.\n"}};
    for (const auto& [call, message] : calls) {
        const ProgramResult result = Run(call);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.errors, message);
    }
}

TEST_F(BadInput, AStandardInputThatCannotBeRead)
{
    WriteNamed({u"a"});
    for (const std::vector<CString>& call : {std::vector<CString>{u"rename", u"--suffix", u"!", u"--stdin"},
                                             {u"rename", u"--suffix", u"!", u"--stdin0", u"a"},
                                             {u"rename", u"--pairs", u"-"}}) {
        ProgramCall program = CallOf(call);
        program.inputFrom = m_folder.Path();
        const ProgramResult result = RunProgram(program);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_THAT(result.output, IsEmpty());
        EXPECT_THAT(result.errors, StartsWith("vyr: cannot read the standard input: "));
    }
}

TEST_F(BadInput, AnEmptyListOfPairs)
{
    m_folder.WriteFile(u"empty.csv", "\n\n");
    ExpectRefused({u"--pairs", u"empty.csv"}, "there are no pairs of names in 'empty.csv'");
    ExpectRefused({u"--pairs", u"-"}, "there are no pairs of names in the standard input");
}

TEST_F(BadInput, ContradictoryOptions)
{
    WriteNamed({u"a", u"d/e"});
    m_folder.WriteFile(u"pairs.csv", "a,b\n");
    ExpectRefused({u"--suffix", u"!", u"--pairs", u"pairs.csv"}, "--pairs");
    ExpectRefused({u"--pairs", u"pairs.csv", u"-r"}, "--pairs");
    ExpectRefused({u"--pairs", u"pairs.csv", u"--stdin"}, "--pairs");
    ExpectRefused({u"--pairs", u"pairs.csv", u"--together"}, "--pairs");
    ExpectRefused({u"--pairs", u"pairs.csv", u"--number-per-folder"}, "--pairs");
    ExpectRefused({u"--pairs", u"pairs.csv", u"--edit"}, "--edit");
    ExpectRefused({u"--suffix", u"!", u"--json", u"-q", u"a"}, "--quiet");
    ExpectRefused({u"--suffix", u"!", u"--sort=name", u"--sort=size", u"a"}, "--sort");
    ExpectRefused({u"--number", u"##", u"--digits", u"3", u"a"}, "--digits");
    ExpectRefused({u"--pairs", u"pairs.csv", u"a"}, "--pairs names the entries itself");
    ExpectRefused({u"--pairs", u"pairs.csv", u"--stdin0"}, "--pairs names the entries itself");
    ExpectRefused({u"--pairs", u"pairs.csv", u"--sort", u"name"}, "--sort");
    ExpectRefused({u"--pairs", u"pairs.csv", u"--descending"}, "--descending");
    ExpectRefused({u"--date", u"yyyy", u"--date-from", u"modified,modified", u"a"}, "twice");
    for (const char16_t* const mode : {u"skip", u"fail"})
        ExpectRefused({u"--suffix", u"!", u"--on-conflict", mode, u"--conflict-position=before", u"a"},
                      "numbers nothing");
    const std::vector<std::vector<CString>> calls = {{u"undo", u"--list", u"1"},
                                                     {u"undo", u"--list", u"--csv", u"--json"},
                                                     {u"recover", u"--abandon", u"--take-back"},
                                                     {u"recover", u"--abandon", u"--json"},
                                                     {u"recover", u"--abandon", u"--preview"},
                                                     {u"copy", u"d", u"to", u"--json", u"-q"}};
    for (const std::vector<CString>& call : calls) {
        const ProgramResult result = Run(call);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_THAT(result.errors, AllOf(StartsWith("vyr: --"), HasSubstr(" exclude each other")));
        EXPECT_THAT(result.output, IsEmpty());
    }
}

TEST_F(BadInput, OptionsThatHaveNoEffectWithoutAnother)
{
    WriteNamed({u"a", u"b.x", u"d/e"});
    const std::string numbering = "say how names are numbered";
    ExpectRefused({u"--prefix", u"x", u"--number-per-folder", u"a"},
                  "--number-per-folder changes nothing without --number, which is not given");
    ExpectRefused({u"--suffix", u"!", u"--only", u"folders", u"d"}, "--only changes nothing without --recursive");
    for (const char16_t* const setting : {u"--start", u"--step", u"--digits"})
        ExpectRefused({u"--prefix", u"x", setting, u"3", u"a"}, " changes nothing without --number");
    ExpectRefused({u"--prefix", u"x", u"--date-from", u"picture", u"a"}, "--date-from changes nothing without --date");
    ExpectRefused({u"--prefix", u"x", u"--hidden", u"a"}, "--hidden changes nothing without --recursive or a wildcard");
    ExpectRefused({u"--prefix", u"x", u"--hidden", u"--stdin"}, "--hidden", "*\n");
    m_folder.WriteFile(u"pairs.csv", "a,b\n");
    for (const CString& option :
         {CString(u"--conflict-pattern=_?"), CString(u"--conflict-position=before"), CString(u"--conflict-start=2"),
          CString(u"--conflict-step=2"), CString(u"--conflict-digits=2")}) {
        ExpectRefused({u"--pairs", u"pairs.csv", option}, numbering);
        ExpectRefused({u"--edit", option, u"a"}, numbering);
        ExpectRefused({u"--replace", u"a", u"b", u"--case=upper", u"--drop-extension", option, u"a"}, numbering);
    }
}

TEST_F(BadInput, OptionsAreTakenWhereTheyHaveAnEffect)
{
    WriteNamed({u"a", u".b", u"d/e", u"d/f"});
    const std::vector<std::vector<CString>> calls = {
        {u"--number", u"#", u"--number-per-folder", u"-r", u"d"},
        {u"--suffix", u"!", u"--hidden", u"*"},
        {u"--suffix", u"!", u"--hidden", u"-r", u"."},
        {u"--suffix", u"!", u"--only", u"all", u"-r", u"d"},
        {u"--keep-first", u"1", u"--case=lower", u"--conflict-pattern=_?", u"--conflict-start=2", u"d/e"},
    };
    for (const std::vector<CString>& call : calls) {
        const ProgramResult result = Rename(call);
        EXPECT_EQ(result.exitCode, 0) << result.errors;
    }
}

TEST_F(BadInput, APairForAFileThatHasOne)
{
    WriteNamed({u"a"});
    ExpectRefused({u"--pairs", u"-"}, "'a' is named twice", "a,b\na,c\n");
}

TEST_F(BadInput, ASourceInsideAnother)
{
    WriteNamed({u"d/e/f", u"de/f"});
    for (const CString& inside : {CString(u"d/e"), CString(u"d/e/f"), CString(u"d/./e/f"), CString(u"de/../d/e/f"),
                                  m_folder.Path(u"d/e/f"), CString(u"d/*")}) {
        ExpectRefused({u"--suffix", u"!", u"d", inside}, "'d' is named together with something inside it");
        ExpectRefused({u"--suffix", u"!", inside, u"d/"}, "is named together with something inside it");
    }
    ExpectRefused({u"--pairs", u"-"}, "inside", "d,x\nd/e/f,y\n");
    const ProgramResult beside = Rename({u"--suffix", u"!", u"d", u"de/f"});
    EXPECT_EQ(beside.exitCode, 0) << beside.errors;
}
