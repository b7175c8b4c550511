// Tests of the program: renames into a folder, folders that they empty, and the depth of recursion.
#include "VyrProgram.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace VyrTests;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Key;
using testing::Not;

namespace {

class RenamePlace : public VyrProgram
{
protected:
    /// What "vyr rename" and `arguments` show, its paths with slashes.
    [[nodiscard]] std::string Shown(const std::vector<CString>& arguments) const
    {
        std::string output = Rename(arguments).output;
        std::replace(output.begin(), output.end(), '\\', '/');
        return output;
    }
};

} // namespace

TEST_F(RenamePlace, IntoAFolderIsBelowItUnderTheNewNames)
{
    WriteNamed({u"a/1.txt", u"a/b/2.txt", u"3.txt"});
    const ProgramResult moved = Rename({u"--into", u"x/out", u"--prefix", u"n", u"-r", u"a", u"3.txt", u"--apply"});
    EXPECT_EQ(moved.exitCode, 0) << moved.errors;
    EXPECT_THAT(Files(), ElementsAre(Key("x/out/n1.txt"), Key("x/out/n2.txt"), Key("x/out/n3.txt")));
    EXPECT_EQ(m_folder.ReadFile(u"x/out/n2.txt"), "a/b/2.txt");
    // The folders stay, empty as they are.
    EXPECT_TRUE(m_folder.Has(u"a/b"));
    EXPECT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_THAT(Files(), ElementsAre(Key("3.txt"), Key("a/1.txt"), Key("a/b/2.txt")));
    EXPECT_FALSE(m_folder.Has(u"x"));
}

TEST_F(RenamePlace, IntoAFolderNeedsNoRuleAndNumbersNamesThatClash)
{
    WriteNamed({u"a/1.txt", u"b/1.txt", u"out/2.txt"});
    const std::string shown = Shown({u"--into", u"out", u"-r", u"a", u"b"});
    EXPECT_THAT(shown, HasSubstr("out/1.txt\n"));
    EXPECT_THAT(shown, HasSubstr("out/1 (1).txt  numbered\n"));
    // Entries of the folder itself stay.
    EXPECT_THAT(Rename({u"--into", u"out", u"-r", u"out"}).output, HasSubstr("1 entry: 1 unchanged."));
    EXPECT_EQ(Rename({u"--into", u"", u"-r", u"a"}).exitCode, 2);
    EXPECT_THAT(Rename({u"--into", u"out/2.txt", u"-r", u"a"}).output,
                HasSubstr("refused: a folder of that name cannot be made"));
}

TEST_F(RenamePlace, FoldersThatRulesMakeAreBelowTheFolder)
{
    WriteNamed({u"a/1.txt"});
    EXPECT_THAT(Shown({u"--into", u"out", u"--date", u"'x'<Folder><Name>", u"-r", u"a"}), HasSubstr("out/x/1.txt\n"));
}

TEST_F(RenamePlace, EmptiedFoldersAreRemovedAndComeBackWithTheUndo)
{
    WriteNamed({u"a/b/c/1.txt", u"a/b/2.txt", u"d/3.txt", u"d/keep", u"e/4.txt"});
    m_folder.MakeFolder(u"e/empty before");
    const std::vector<CString> call = {u"--into", u"out", u"--remove-empty", u"-r",   u"a",
                                       u"d",      u"e",   u"--include",      u"*.txt"};
    const ProgramResult shown = Rename(call);
    EXPECT_THAT(shown.output, HasSubstr("3 folders that become empty will be removed.\n"));
    EXPECT_TRUE(m_folder.Has(u"a/b/c/1.txt"));

    std::vector<CString> applied = call;
    applied.emplace_back(u"--apply");
    EXPECT_EQ(Rename(applied).exitCode, 0);
    EXPECT_FALSE(m_folder.Has(u"a"));
    EXPECT_TRUE(m_folder.Has(u"d/keep"));
    EXPECT_TRUE(m_folder.Has(u"e/empty before"));

    const ProgramResult undone = Run({u"undo"});
    EXPECT_EQ(undone.exitCode, 0) << undone.errors;
    EXPECT_THAT(undone.output, HasSubstr("removed -> empty folder"));
    EXPECT_THAT(Files(),
                ElementsAre(Key("a/b/2.txt"), Key("a/b/c/1.txt"), Key("d/3.txt"), Key("d/keep"), Key("e/4.txt")));
    EXPECT_FALSE(m_folder.Has(u"out"));
    // And the redo removes them again.
    EXPECT_EQ(Run({u"undo", u"2"}).exitCode, 0);
    EXPECT_FALSE(m_folder.Has(u"a"));
}

TEST_F(RenamePlace, FoldersThatHoldOtherThingsOrAreNeededStay)
{
    WriteNamed({u"a/1.txt", u"a/.hidden", u"b/2.txt", u"c/3.txt"});
    const ProgramResult shown = Rename({u"--into", u"b/new", u"--remove-empty", u"-r", u"a", u"b"});
    EXPECT_THAT(shown.output, Not(HasSubstr("removed"))) << shown.output;
    // Not the current folder.
    ProgramCall call = CallOf({u"rename", u"--into", u"../out", u"--remove-empty", u"-r", u"."});
    call.folder = m_folder.Path(u"c");
    EXPECT_THAT(RunProgram(call).output, Not(HasSubstr("removed")));
    // Without the option none.
    EXPECT_THAT(Rename({u"--into", u"out", u"-r", u"c"}).output, Not(HasSubstr("removed")));
}

TEST_F(RenamePlace, RecursionGoesAsDeepAsIsAsked)
{
    WriteNamed({u"a/1", u"a/b/2", u"a/b/c/3"});
    EXPECT_THAT(Rename({u"--prefix", u"x", u"-r", u"a", u"--max-depth", u"1"}).output, HasSubstr("1 entry: 1 renamed"));
    EXPECT_THAT(Rename({u"--prefix", u"x", u"-r", u"a", u"--max-depth=2"}).output, HasSubstr("2 entries: 2 renamed"));
    EXPECT_THAT(Rename({u"--prefix", u"x", u"-r", u"a", u"--max-depth=9"}).output, HasSubstr("3 entries: 3 renamed"));
    EXPECT_THAT(Rename({u"--prefix", u"x", u"-r", u"a", u"--max-depth=1", u"--only=all"}).output,
                HasSubstr("2 entries: 2 renamed"));
    EXPECT_THAT(Run({u"list", u"-r", u"a", u"--max-depth", u"1", u"--csv", u"--columns", u"name"}).output,
                Not(HasSubstr("2\r\n")));
    for (const CString wrong : {u"0", u"-1", u"x"})
        EXPECT_EQ(Rename({u"--prefix", u"x", u"-r", u"a", u"--max-depth", wrong}).exitCode, 2);
    EXPECT_EQ(Rename({u"--prefix", u"x", u"a", u"--max-depth", u"1"}).exitCode, 2);
}
