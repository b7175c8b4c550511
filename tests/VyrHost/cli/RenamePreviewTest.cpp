// Tests of the program: "vyr rename" as a preview.
#include "VyrProgram.h"

#include <VyrHost/ui/Output.h>
#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>

using namespace VyrTests;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

using RenamePreview = VyrProgram;

std::string Json(std::u16string_view text)
{
    std::string line;
    VyrHost::Ui::AppendJsonText(line, text);
    return line;
}

} // namespace

TEST_F(RenamePreview, ShowsOldAndNewNamesAndCounts)
{
    m_folder.WriteFile(u"a.txt");
    m_folder.WriteFile(u"long name.txt");
    const ProgramResult result = Rename({u"--prefix", u"x ", u"a.txt", u"long name.txt"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "a.txt          ->  x a.txt\n"
                             "long name.txt  ->  x long name.txt\n"
                             "2 entries: 2 renamed.\n"
                             "This is a preview: nothing was changed.\n");
    EXPECT_THAT(result.errors, IsEmpty());
    EXPECT_TRUE(m_folder.Has(u"a.txt"));
    EXPECT_FALSE(m_folder.Has(u"x a.txt"));
}

TEST_F(RenamePreview, WritesAJsonObjectALine)
{
    m_folder.WriteFile(u"a é.txt");
    m_folder.WriteFile(u"b.txt");
    const ProgramResult result = Rename({u"--json", u"--replace", u"a", u"b", u"b.txt", u"none", u"a*"});
    EXPECT_EQ(result.exitCode, 1);
    const auto path = [this](std::u16string_view name) {
        return Json(m_folder.Path(name));
    };
    EXPECT_EQ(
        result.output,
        "{\"from\":" + path(u"b.txt") + ",\"to\":" + path(u"b.txt") + ",\"status\":\"unchanged\",\"preview\":true}\n" +
            "{\"from\":" + path(u"none") +
            ",\"to\":null,\"status\":\"refused\",\"reason\":\"there is nothing of that name\",\"preview\":true}\n" +
            "{\"from\":" + path(u"a é.txt") + ",\"to\":" + path(u"b é.txt") +
            ",\"status\":\"renamed\",\"preview\":true}\n");
    EXPECT_EQ(result.errors, "3 entries: 1 renamed, 1 unchanged, 1 refused.\n");
}

TEST_F(RenamePreview, ReadsNamesFromTheStandardInput)
{
    m_folder.WriteFile(u"a b");
    m_folder.WriteFile(u"c");
    EXPECT_THAT(Rename({u"--suffix", u"!", u"--stdin"}, "a b\nc").output, StartsWith("a b  ->  a b!\nc    ->  c!\n"));
    EXPECT_THAT(Rename({u"--suffix", u"!", u"--stdin0"}, std::string("c\0a b\0", 6)).output,
                StartsWith("c    ->  c!\na b  ->  a b!\n"));
    EXPECT_EQ(Rename({u"--suffix", u"!", u"--stdin", u"--stdin0"}).exitCode, 2);
}

TEST_F(RenamePreview, EscapesControlCharactersInNames)
{
    const CString name = u"a\U0001F600\u202Eb";
    m_folder.WriteFile(name);
    const ProgramResult result = Rename({u"--prefix", u"x", u"*"});
    EXPECT_THAT(result.output, StartsWith("a\xF0\x9F\x98\x80\\u202eb  ->  xa\xF0\x9F\x98\x80\\u202eb\n"));
}

TEST_F(RenamePreview, TakesEveryArgumentUnchanged)
{
    for (const char16_t* const name : {u"[a,b]", u"rename", u"{}", u"%%", u"-x", u"true", u"[]"})
        m_folder.WriteFile(name);
    const ProgramResult result = Rename({u"--replace", u"[a,b]", u"", u"--prefix", u"[1,2]", u"[a,b]", u"rename", u"{}",
                                         u"%%", u"true", u"[]", u"--", u"-x"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.output, "[a,b]   ->  [1,2]\n"
                             "rename  ->  [1,2]rename\n"
                             "{}      ->  [1,2]{}\n"
                             "%%      ->  [1,2]%%\n"
                             "true    ->  [1,2]true\n"
                             "[]      ->  [1,2][]\n"
                             "-x      ->  [1,2]-x\n"
                             "7 entries: 7 renamed.\n"
                             "This is a preview: nothing was changed.\n");
}

TEST_F(RenamePreview, AppliesRulesInTheOrderGiven)
{
    m_folder.WriteFile(u"abc.txt");
    EXPECT_THAT(Rename({u"--case", u"upper", u"--prefix", u"x", u"*"}).output, HasSubstr("->  xABC.txt\n"));
    EXPECT_THAT(Rename({u"--prefix", u"x", u"--case", u"upper", u"*"}).output, HasSubstr("->  XABC.txt\n"));
    EXPECT_THAT(Rename({u"--number", u"<Name>#", u"--start", u"5", u"--prefix", u"-", u"--number", u"#<Name>",
                        u"--start=7", u"*"})
                    .output,
                HasSubstr("->  7-abc5.txt\n"));
    EXPECT_THAT(Rename({u"--start", u"5", u"--number", u"#", u"*"}).output, HasSubstr("->  5.txt\n"));
}

TEST_F(RenamePreview, RefusesWrongCallsWithTheReason)
{
    m_folder.WriteFile(u"a");
    struct Case
    {
        std::vector<CString> arguments;
        const char* reason;
    };
    for (const auto& [arguments, reason] :
         {Case{{u"a"}, "no rule"}, Case{{u"--case", u"upper"}, "nothing to rename"},
          Case{{u"--bogus", u"a"}, "--bogus"}, Case{{u"--start", u"1", u"--case", u"upper", u"a"}, "--number"},
          Case{{u"--number", u"#", u"--start", u"1", u"--start", u"2", u"a"}, "twice"},
          Case{{u"--number", u"#", u"--digits", u"256", u"a"}, "255"},
          Case{{u"--number", u"#", u"--start", u"4000000000", u"a"}, "4000000000"},
          Case{{u"--prefix", u"", u"a"}, "--prefix"}, Case{{u"a", u"--prefix"}, "--prefix"},
          Case{{u"--replace", u"x"}, "--replace"}}) {
        const ProgramResult result = Rename(arguments);
        EXPECT_EQ(result.exitCode, 2) << result.output;
        EXPECT_THAT(result.output, IsEmpty());
        EXPECT_THAT(result.errors, AllOf(StartsWith("vyr: "), HasSubstr(reason)));
    }
}

TEST_F(RenamePreview, ReportsThatTheOutputCannotBeWritten)
{
    m_folder.WriteFile(u"a");
    ProgramCall call;
    call.program = BesideThisProgram(u"vyr");
    call.arguments = {u"rename", u"--prefix", u"x", u"a"};
    call.folder = m_folder.Path();
    call.isOutputClosed = true;
    EXPECT_EQ(RunProgram(call).exitCode, 3);
}

TEST_F(RenamePreview, ShowsFilesWithTheirFolderAsGiven)
{
    m_folder.WriteFile(u"d/e/a");
    m_folder.WriteFile(u"d/b");
    const ProgramResult result = Rename({u"--prefix", u"x", u"-r", u"d"});
    EXPECT_EQ(result.exitCode, 0);
    std::string slash = VyrPlatform::Encoding::ToUtf8(m_folder.Path(u"d/").Right(1));
    EXPECT_EQ(result.output, "d" + slash + "b    ->  xb\nd" + slash + "e" + slash + "a  ->  xa\n" +
                                 "2 entries: 2 renamed.\nThis is a preview: nothing was changed.\n");
}

TEST_F(RenamePreview, AFolderThatWouldMoveIntoItselfIsRefused)
{
    m_folder.WriteFile(u"d/x");
    m_folder.WriteFile(u"e");
    const ProgramResult result = Rename({u"--pairs", u"-"}, "d,d/in/d\ne,d\n");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("refused: the folder would end up inside itself\n"));
    EXPECT_THAT(result.output, HasSubstr("refused: the new path is taken by an entry that keeps it\n"));
    EXPECT_THAT(result.output, HasSubstr("2 entries: 2 refused.\n"));
    // Happens when a call that sorts by date is repeated, with the folder that it created.
    const ProgramResult again = Rename({u"--date", u"'d'<Folder><Name>", u"d", u"e"});
    EXPECT_EQ(again.exitCode, 1);
    EXPECT_THAT(again.output, HasSubstr("refused: the folder would end up inside itself\n"));
    EXPECT_THAT(again.output, HasSubstr("2 entries: 1 renamed, 1 refused.\n"));
    // Two folders cannot each move into the other.
    m_folder.WriteFile(u"f/x");
    EXPECT_THAT(Rename({u"--pairs", u"-"}, "d,f/d\nf,d/f\n").output, HasSubstr("2 entries: 2 refused.\n"));
}

TEST_F(RenamePreview, NamesABatchThatWasCutOff)
{
    const ScratchFolder journal;
    m_environment[u"VYR_JOURNAL_DIR"] = journal.Path();
    journal.WriteFile(u"000001.taking-back", "damaged");
    m_folder.WriteFile(u"a");
    const ProgramResult result = Rename({u"--suffix", u"!", u"a"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, StartsWith("a  ->  a!\n"));
    EXPECT_EQ(result.errors, "vyr: batch 1 was cut off; \"vyr recover\" ends it\n");
}
