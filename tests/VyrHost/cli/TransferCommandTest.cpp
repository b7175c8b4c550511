// Tests of the program: folders that are copied and moved.
#include "VyrProgram.h"

#include <gmock/gmock.h>

using namespace VyrTests;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

using TransferCommand = VyrProgram;

} // namespace

TEST_F(TransferCommand, WithoutApplyOnlyShows)
{
    m_folder.WriteFile(u"from/a/b", "12345");
    for (const char16_t* const command : {u"copy", u"move"}) {
        const ProgramResult result = Run({command, u"from", u"to"});
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        EXPECT_THAT(result.output, StartsWith("from  ->  to  2 folders, 1 file, 5 bytes\n1 folder: 1 "));
        EXPECT_THAT(result.output, HasSubstr("This is a preview: nothing was changed.\n"));
        EXPECT_FALSE(m_folder.Has(u"to"));
    }
}

TEST_F(TransferCommand, CopiesAndMoves)
{
    m_folder.WriteFile(u"from/a/b", "12345");
    ProgramResult result = Run({u"copy", u"from", u"to", u"--apply"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.output, "from  ->  to  2 folders, 1 file, 5 bytes\n1 folder: 1 copied.\n");
    EXPECT_THAT(result.errors, IsEmpty());
    EXPECT_EQ(m_folder.ReadFile(u"to/a/b"), "12345");
    EXPECT_EQ(m_folder.ReadFile(u"from/a/b"), "12345");

    result = Run({u"move", u"--apply", u"--quiet", u"from", u"new"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.output + result.errors, "");
    EXPECT_EQ(m_folder.ReadFile(u"new/a/b"), "12345");
    EXPECT_FALSE(m_folder.Has(u"from"));
}

TEST_F(TransferCommand, SeveralGoIntoAFolder)
{
    m_folder.WriteFile(u"one/a", "1");
    m_folder.WriteFile(u"x/two/b", "2");
    m_folder.MakeFolder(u"to");
    const ProgramResult result = Run({u"move", u"one", u"x/two/", u"to", u"--apply"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("2 folders: 2 moved.\n"));
    EXPECT_EQ(m_folder.ReadFile(u"to/one/a"), "1");
    EXPECT_EQ(m_folder.ReadFile(u"to/two/b"), "2");
}

TEST_F(TransferCommand, NothingIsDoneWithOneConflict)
{
    m_folder.WriteFile(u"one/a", "1");
    m_folder.WriteFile(u"two/b", "2");
    m_folder.WriteFile(u"to/two/b", "old");
    ProgramResult result = Run({u"move", u"one", u"two", u"to", u"--apply"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("refused: the new path is there already\n"));
    EXPECT_THAT(result.output, HasSubstr("2 folders: 1 refused, 1 not reached.\nNothing was moved.\n"));
    EXPECT_EQ(m_folder.ReadFile(u"one/a"), "1");
    EXPECT_EQ(m_folder.ReadFile(u"two/b"), "2");
    EXPECT_EQ(m_folder.ReadFile(u"to/two/b"), "old");
    EXPECT_FALSE(m_folder.Has(u"to/one"));

    result = Run({u"copy", u"one", u"two", u"to", u"--apply", u"-q"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_THAT(result.errors, StartsWith("vyr: 'one' not reached\nvyr: 'two"));
}

TEST_F(TransferCommand, TargetThatAppearsAfterThePreviewIsNotOverwritten)
{
    m_folder.WriteFile(u"from/a", "new");
    m_folder.MakeFolder(u"to");
    EXPECT_EQ(Run({u"move", u"from", u"to"}).exitCode, 0);
    m_folder.WriteFile(u"to/from/a", "old");
    EXPECT_EQ(Run({u"move", u"from", u"to", u"--apply"}).exitCode, 1);
    EXPECT_EQ(m_folder.ReadFile(u"to/from/a"), "old");
    EXPECT_EQ(m_folder.ReadFile(u"from/a"), "new");
}

TEST_F(TransferCommand, JsonHasEachFolderAndEachProblem)
{
    m_folder.WriteFile(u"from/a", "123");
    ProgramResult result = Run({u"copy", u"from", u"to", u"--json"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, StartsWith("{\"from\":\""));
    EXPECT_THAT(result.output,
                HasSubstr("\",\"status\":\"copied\",\"folders\":1,\"files\":1,\"bytes\":3,\"preview\":true}\n"));
    EXPECT_EQ(result.errors, "1 folder: 1 copied.\n");
    m_folder.WriteFile(u"to/from/a", "456");
    result = Run({u"copy", u"from", u"to", u"--json"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("\"status\":\"refused\",\"folders\":1,"));
    EXPECT_THAT(result.output,
                HasSubstr("\"status\":\"refused\",\"reason\":\"the new path is there already\",\"preview\":true}\n"));
}

TEST_F(TransferCommand, WrongCallsAreRefusedBeforeAnythingIsChanged)
{
    m_folder.WriteFile(u"a/b/c", "1");
    m_folder.WriteFile(u"file");
    m_folder.MakeFolder(u"to");
    const std::vector<std::vector<CString>> calls = {
        {},
        {u"a"},
        {u"a", u"missing", u"to"},
        {u"a", u"a", u"to"},
        {u"a", u"a/b", u"to"},
        {u"a", u"a"},
        {u"a", u"a/b"},
        {u"a", u"."},
        {u"a", u"file"},
        {u"file", u"to"},
        {u"a", u""},
        {u"a", u"missing/new"},
        {u"a", u"to", u"--json", u"--quiet"},
        {u"a", u"to", u"--unknown"},
    };
    for (const CString command : {u"copy", u"move"})
        for (const std::vector<CString>& call : calls) {
            std::vector<CString> arguments = {command, u"--apply"};
            arguments.insert(arguments.end(), call.begin(), call.end());
            const ProgramResult result = Run(arguments);
            EXPECT_EQ(result.exitCode, 2) << testing::PrintToString(call.size()) << result.output;
            EXPECT_THAT(result.errors, StartsWith("vyr: "));
        }
    EXPECT_EQ(m_folder.ReadFile(u"a/b/c"), "1");
    EXPECT_FALSE(m_folder.Has(u"to/a"));
}

TEST_F(TransferCommand, FolderWithTheJournalStaysAndIsCopied)
{
    m_folder.WriteFile(u"a");
    m_environment[u"VYR_JOURNAL_DIR"] = m_folder.Path(u"home/state/journal");
    ASSERT_EQ(Run({u"rename", u"--prefix", u"x", u"a", u"--apply"}).exitCode, 0);
    for (const char16_t* const source : {u"home", u"home/state", u"home/state/journal"}) {
        for (const bool isApplied : {false, true}) {
            std::vector<CString> call = {u"move", source, u"to"};
            if (isApplied)
                call.emplace_back(u"--apply");
            const ProgramResult result = Run(call);
            EXPECT_EQ(result.exitCode, 2) << result.output;
            EXPECT_THAT(result.errors, HasSubstr("' must stay where it is: the journal that \"vyr undo\" needs"));
        }
    }
    EXPECT_FALSE(m_folder.Has(u"to"));
    EXPECT_EQ(Run({u"copy", u"home", u"to", u"--apply"}).exitCode, 0);
    m_folder.WriteFile(u"home/other/b");
    EXPECT_EQ(Run({u"move", u"home/other", u"moved", u"--apply"}).exitCode, 0);
    EXPECT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"a"));
}

TEST_F(TransferCommand, NamesABatchThatWasCutOffAndContinues)
{
    const ScratchFolder journal;
    m_environment[u"VYR_JOURNAL_DIR"] = journal.Path();
    journal.WriteFile(u"000003.applying", "damaged");
    m_folder.WriteFile(u"from/a", "1");
    for (const char16_t* const command : {u"copy", u"move"}) {
        for (const bool isApplied : {false, true}) {
            std::vector<CString> call = {command, u"from", CString(command) + u"d"};
            if (isApplied)
                call.emplace_back(u"--apply");
            const ProgramResult result = Run(call);
            EXPECT_EQ(result.exitCode, 0) << result.output;
            EXPECT_EQ(result.errors, "vyr: batch 3 was cut off; \"vyr recover\" ends it\n");
        }
        EXPECT_EQ(m_folder.ReadFile(CString(command) + u"d/a"), "1");
    }
    EXPECT_TRUE(journal.Has(u"000003.applying"));
}
