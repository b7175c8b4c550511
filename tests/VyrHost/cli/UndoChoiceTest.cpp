// Tests of the program: which batch "vyr undo" takes, and which it only names.
#include "VyrProgram.h"

#include <gmock/gmock.h>

#include <filesystem>

using namespace VyrTests;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

class UndoChoice : public VyrProgram
{
protected:
    UndoChoice() { m_environment[u"VYR_JOURNAL_DIR"] = m_journal.Path(u"journal"); }

    /// Renames "a" to "ax" in `folder`.
    void RenameIn(const ScratchFolder& folder, const CString& name = u"a") const
    {
        folder.WriteFile(name, "content");
        ASSERT_EQ(Rename({u"--suffix", u"x", u"--apply", u"--quiet", folder.Path(name)}).exitCode, 0);
    }

    [[nodiscard]] std::filesystem::path JournalFile(const char* name) const
    {
        return ToStdPath(m_journal.Path(u"journal")) / name;
    }

    ScratchFolder m_elsewhere;
    ScratchFolder m_journal;
};

} // namespace

TEST_F(UndoChoice, IsTheLatestInThisFolderOrBelow)
{
    RenameIn(m_folder);
    m_folder.MakeFolder(u"below");
    RenameIn(m_folder, u"below/a");
    RenameIn(m_elsewhere);
    const ProgramResult first = Run({u"undo"});
    EXPECT_EQ(first.exitCode, 0) << first.errors;
    EXPECT_THAT(first.output, StartsWith("Undoing batch 2 of "));
    EXPECT_THAT(first.output, HasSubstr(", rename in "));
    EXPECT_THAT(first.output, HasSubstr(", 1 entry.\n"));
    EXPECT_THAT(first.output, HasSubstr("\"vyr undo 4\" redoes it.\n"));
    EXPECT_TRUE(m_folder.Has(u"below/a"));
    EXPECT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"a"));
    EXPECT_TRUE(m_elsewhere.Has(u"ax"));
}

TEST_F(UndoChoice, ListsTheLatestElsewhereWhereThereIsNoneHere)
{
    RenameIn(m_elsewhere);
    const ProgramResult none = Run({u"undo"});
    EXPECT_EQ(none.exitCode, 4);
    EXPECT_THAT(none.errors, AllOf(HasSubstr("no batch to undo in this folder"), HasSubstr("batch 1 of ")));
    EXPECT_TRUE(m_elsewhere.Has(u"ax"));
    EXPECT_EQ(Run({u"undo", u"1"}).exitCode, 0);
    EXPECT_TRUE(m_elsewhere.Has(u"a"));
    EXPECT_THAT(Run({u"undo"}).errors, HasSubstr("there is no batch to undo"));
}

TEST_F(UndoChoice, IsNoBatchWithEntriesOutsideThisFolder)
{
    m_folder.WriteFile(u"in/a");
    m_folder.WriteFile(u"out/b");
    ASSERT_EQ(Rename({u"--suffix", u"x", u"--apply", u"in/a", u"out/b"}).exitCode, 0);
    ProgramCall call = CallOf({u"undo"});
    call.folder = m_folder.Path(u"in");
    EXPECT_EQ(RunProgram(call).exitCode, 4);
    EXPECT_TRUE(m_folder.Has(u"in/ax"));
    EXPECT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"in/a"));
}

TEST_F(UndoChoice, SkipsBatchesWhoseFilesAreGoneOrWhoseJournalIsDamaged)
{
    RenameIn(m_folder, u"a");
    RenameIn(m_folder, u"b");
    RenameIn(m_folder, u"c");
    std::filesystem::remove(ToStdPath(m_folder.Path(u"bx")));
    std::filesystem::resize_file(JournalFile("000003.applied"), 10);
    const ProgramResult result = Run({u"undo"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_TRUE(m_folder.Has(u"a"));
    EXPECT_TRUE(m_folder.Has(u"cx"));
    EXPECT_THAT(
        result.errors,
        AllOf(
            HasSubstr("batch 3 is passed over: "),
            HasSubstr("; the vyr that wrote it, or an intact copy of it, can undo it; a damaged one can be deleted\n"),
            HasSubstr("\"vyr undo 2\" undoes it")));
    EXPECT_THAT(result.output,
                AllOf(StartsWith("Undoing batch 1 of "), Not(HasSubstr("batch 2")), Not(HasSubstr("batch 3"))))
        << "only what is undone is said to be";
}

TEST_F(UndoChoice, RedoesByTheNumberOfTheUndoAndSkipsUndos)
{
    RenameIn(m_folder, u"a");
    RenameIn(m_folder, u"b");
    ASSERT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"b"));
    const ProgramResult redone = Run({u"undo", u"3"});
    EXPECT_EQ(redone.exitCode, 0) << redone.errors;
    EXPECT_THAT(redone.output, AllOf(StartsWith("Redoing batch 2 of "), HasSubstr("b  ->  bx\n"),
                                     HasSubstr("Batch 2: 1 entry: 1 renamed.\n"), Not(HasSubstr("redoes"))));
    EXPECT_TRUE(m_folder.Has(u"bx"));
    ASSERT_EQ(Run({u"undo"}).exitCode, 0);
    ASSERT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"a"));
    EXPECT_TRUE(m_folder.Has(u"b"));
    EXPECT_EQ(Run({u"undo"}).exitCode, 4);
}

TEST_F(UndoChoice, IsOnlyShownByPreview)
{
    RenameIn(m_folder);
    const ProgramResult shown = Run({u"undo", u"--preview"});
    EXPECT_EQ(shown.exitCode, 0) << shown.errors;
    EXPECT_THAT(shown.output, AllOf(StartsWith("Undoing batch 1 of "), HasSubstr("ax  ->  a\n"),
                                    HasSubstr("This is a preview: nothing was changed.\n")));
    EXPECT_TRUE(m_folder.Has(u"ax"));
    EXPECT_TRUE(std::filesystem::exists(JournalFile("000001.applied")));
    const ProgramResult json = Run({u"undo", u"1", u"--preview", u"--json"});
    EXPECT_THAT(json.output, HasSubstr("\"status\":\"renamed\""));
    EXPECT_THAT(json.errors, StartsWith("Undoing batch 1 of "));
    EXPECT_EQ(Run({u"undo", u"--list", u"--preview"}).exitCode, 2);
    ASSERT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_THAT(Run({u"undo", u"2", u"--preview"}).output, StartsWith("Redoing batch 1 of "));
    EXPECT_TRUE(m_folder.Has(u"a"));
}

TEST_F(UndoChoice, HasTheLimitsOfTheEnvironment)
{
    m_environment[u"VYR_KEEP_BATCHES"] = u"2";
    for (const char16_t* name : {u"a", u"b", u"c"})
        RenameIn(m_folder, name);
    EXPECT_FALSE(std::filesystem::exists(JournalFile("000001.applied")));
    EXPECT_TRUE(std::filesystem::exists(JournalFile("000002.applied")));
    m_environment[u"VYR_KEEP_BATCHES"] = u"none";
    m_environment[u"VYR_KEEP_DAYS"] = u"-1";
    RenameIn(m_folder, u"d");
    EXPECT_TRUE(std::filesystem::exists(JournalFile("000002.applied")));
}
