// Tests of the program: names from wildcards, folders, the standard input, tables and the editor.
#include "VyrProgram.h"

#include <gmock/gmock.h>

using namespace VyrTests;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

using NameInput = VyrProgram;

using FileMap = std::map<std::string, std::string>;

} // namespace

TEST_F(NameInput, RecursionEntersFoldersThatAWildcardMatches)
{
    WriteNamed({u"a", u"d/b", u"d/e/c", u".h/x", u"f/.g"});
    ASSERT_EQ(Rename({u"--suffix", u"!", u"--apply", u"-r", u"*"}).exitCode, 0);
    EXPECT_EQ(Files(),
              (FileMap{{"a!", "a"}, {"d/b!", "d/b"}, {"d/e/c!", "d/e/c"}, {".h/x", ".h/x"}, {"f/.g", "f/.g"}}));
    ASSERT_EQ(Run({u"undo"}).exitCode, 0);
    ASSERT_EQ(Rename({u"--suffix", u"!", u"--apply", u"-r", u"--hidden", u"*"}).exitCode, 0);
    EXPECT_EQ(Files(),
              (FileMap{{"a!", "a"}, {"d/b!", "d/b"}, {"d/e/c!", "d/e/c"}, {".h/x!", ".h/x"}, {"f/.g!", "f/.g"}}));
}

TEST_F(NameInput, OnlyAppliesToNamedEntries)
{
    WriteNamed({u"a", u"d/b", u"d/e/c"});
    ASSERT_EQ(Rename({u"--suffix", u"!", u"--apply", u"-r", u"--only", u"folders", u"a", u"d"}).exitCode, 0);
    EXPECT_EQ(Files(), (FileMap{{"a", "a"}, {"d/b", "d/b"}, {"d/e!/c", "d/e/c"}}));
    ASSERT_EQ(Run({u"undo"}).exitCode, 0);
    ASSERT_EQ(Rename({u"--suffix", u"!", u"--apply", u"-r", u"--only", u"all", u"a", u"d"}).exitCode, 0);
    EXPECT_EQ(Files(), (FileMap{{"a!", "a"}, {"d/b!", "d/b"}, {"d/e!/c!", "d/e/c"}}));
}

TEST_F(NameInput, WildcardsMatchCaseAsTheFileSystemDoes)
{
    WriteNamed({u"a1.txt", u"A2.TXT", u"b.txt"});
    const bool isOne = m_folder.Has(u"A1.TXT");
    EXPECT_THAT(Rename({u"--suffix", u"!", u"A*.TXT"}).output,
                StartsWith(isOne ? "a1.txt  ->  a1!.txt\nA2.TXT  ->  A2!.TXT\n2 entries: 2 renamed.\n"
                                 : "A2.TXT  ->  A2!.TXT\n1 entry: 1 renamed.\n"));
    EXPECT_THAT(Rename({u"--suffix", u"!", u"a?.txt"}).output,
                StartsWith(isOne ? "a1.txt  ->  a1!.txt\nA2.TXT  ->  A2!.TXT\n" : "a1.txt  ->  a1!.txt\n1 entry: "));
}

TEST_F(NameInput, FromTheStandardInputHaveNoWildcards)
{
    WriteNamed({u"a", u"b"});
    const ProgramResult result = Rename({u"--suffix", u"!", u"--stdin"}, "*\na\n");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, StartsWith("*          refused: there is nothing of that name\na  ->  a!\n2 entries: "));
}

TEST_F(NameInput, FromTheStandardInputMayHaveAByteOrderMarkAndNoLastLineEnd)
{
    WriteNamed({u"a", u"b c"});
    EXPECT_THAT(Rename({u"--suffix", u"!", u"--stdin"}, "\xEF\xBB\xBF"
                                                        "a\n\nb c")
                    .output,
                StartsWith("a    ->  a!\nb c  ->  b c!\n2 entries: 2 renamed.\n"));
    EXPECT_THAT(Rename({u"--suffix", u"!", u"--stdin0", u"a"}, "b c").output, HasSubstr("2 entries: 2 renamed.\n"));
    EXPECT_EQ(Rename({u"--suffix", u"!", u"--stdin"}, "").output,
              "0 entries.\nThis is a preview: nothing was changed.\n");
}

TEST_F(NameInput, TablesMayHaveQuotesAByteOrderMarkAndEmptyLines)
{
    WriteNamed({u"a,b", u"c d", u"e", u"f"});
    const ProgramResult result =
        Rename({u"--pairs", u"-", u"--apply"}, "\xEF\xBB\xBF\r\n\"a,b\",\"x,1\"\r\n\r\nc d,y 2\r\ne,\"z\"\n");
    EXPECT_EQ(result.exitCode, 0) << result.errors << result.output;
    EXPECT_EQ(Files(), (FileMap{{"x,1", "a,b"}, {"y 2", "c d"}, {"z", "e"}, {"f", "f"}}));
}

TEST_F(NameInput, TableOfTheListIsReadWithItsHeading)
{
    WriteNamed({u"a", u"b,1"});
    std::string table = Run({u"list", u"--csv", u"--quiet", u"--columns", u"path,name", u"a", u"b,1"}).output;
    table.replace(table.rfind("b,1"), 3, "new, too");
    EXPECT_EQ(Rename({u"--pairs", u"-", u"--apply"}, table).exitCode, 0);
    EXPECT_EQ(Files(), (FileMap{{"a", "a"}, {"new, too", "b,1"}}));
    // A file may have that name.
    WriteNamed({u"path"});
    EXPECT_EQ(Rename({u"--pairs", u"-", u"--apply"}, "path,name\n").exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"name"));
}

TEST_F(NameInput, FieldsOfTablesWithTabsAreLiteral)
{
    WriteNamed({u"a,b", u"c d", u"e", u"f"});
    const ProgramResult result = Rename({u"--pairs", u"-", u"--apply"}, "\n\na,b\tx,1\r\nc d\ty; 2\ne\td/z\n");
    EXPECT_EQ(result.exitCode, 0) << result.errors << result.output;
    EXPECT_EQ(Files(), (FileMap{{"x,1", "a,b"}, {"y; 2", "c d"}, {"d/z", "e"}, {"f", "f"}}));
}

TEST_F(NameInput, TablesMayRenameInACycle)
{
    WriteNamed({u"a", u"b", u"c", u"taken"});
    EXPECT_EQ(Rename({u"--pairs", u"-", u"--apply"}, "a,b\nb,c\nc,a\n").exitCode, 0);
    EXPECT_EQ(Files(), (FileMap{{"a", "c"}, {"b", "a"}, {"c", "b"}, {"taken", "taken"}}));
    // All are refused where one cannot be renamed.
    const ProgramResult result = Rename({u"--pairs", u"-", u"--apply"}, "a,b\nb,taken\n");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("2 entries: 2 refused.\n"));
    EXPECT_EQ(Files(), (FileMap{{"a", "c"}, {"b", "a"}, {"c", "b"}, {"taken", "taken"}}));
}

TEST_F(NameInput, InPairsMustHaveDifferentNewNames)
{
    WriteNamed({u"a", u"b"});
    for (const char16_t* const mode : {u"number", u"skip"}) {
        const ProgramResult result = Rename({u"--pairs", u"-", u"--on-conflict", mode}, "a,x\nb,x\n");
        EXPECT_THAT(result.output, HasSubstr(": another entry gets the same name\n2 entries: 1 renamed, 1 "));
    }
    EXPECT_THAT(Rename({u"--pairs", u"-", u"--on-conflict=fail", u"--apply"}, "a,x\nb,x\n").output,
                HasSubstr("Nothing was renamed.\n"));
    EXPECT_EQ(Files(), (FileMap{{"a", "a"}, {"b", "b"}}));
}

TEST_F(NameInput, TypedTextsFindNamesInWhateverNormalForm)
{
    // A file system that compares names exactly stores them so; on others each form finds the other.
    WriteNamed({u"\u00e9.txt", u"e\u0301te\u0301.txt"});
    for (const CString& call : {CString(u"\u00e9t\u00e9.txt"), CString(u"e\u0301te\u0301.txt"), CString(u"\u00e9t*"),
                                CString(u"?t?.*"), CString(u"e\u0301t*")}) {
        const ProgramResult result = Rename({u"--replace", u"\u00e9", u"e", call});
        EXPECT_EQ(result.exitCode, 0) << result.output;
        EXPECT_THAT(result.output, HasSubstr("  ->  ete.txt\n1 entry: 1 renamed.\n"));
    }
    EXPECT_THAT(Rename({u"--replace", u"e\u0301", u"x", u"e\u0301.txt"}).output, HasSubstr("  ->  x.txt\n"));
    EXPECT_THAT(Rename({u"--pairs", u"-"}, "\xC3\xA9t\xC3\xA9.txt,x.txt\n").output,
                HasSubstr("  ->  x.txt\n1 entry: 1 renamed.\n"));
}

TEST_F(NameInput, ANameAsWrittenComesBeforeItsOtherForm)
{
    WriteNamed({u"\u00e9"});
    if (m_folder.Has(u"e\u0301"))
        GTEST_SKIP() << "the file system takes both forms for one name";
    WriteNamed({u"e\u0301"});
    ASSERT_EQ(Rename({u"--suffix", u"2", u"--apply", u"e\u0301"}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"e\u03012"));
    EXPECT_TRUE(m_folder.Has(u"\u00e9"));
}

TEST_F(NameInput, QuietPrintsNothingOnSuccess)
{
    WriteNamed({u"a", u"b"});
    const ProgramResult preview = Rename({u"--suffix", u"!", u"-q", u"a"});
    EXPECT_EQ(preview.output + preview.errors, "");
    const ProgramResult applied = Rename({u"--suffix", u"!", u"-q", u"--apply", u"a"});
    EXPECT_EQ(applied.output + applied.errors, "");
    const ProgramResult undone = Run({u"undo", u"-q"});
    EXPECT_EQ(undone.output + undone.errors, "");
    EXPECT_EQ(Files(), (FileMap{{"a", "a"}, {"b", "b"}}));
}
