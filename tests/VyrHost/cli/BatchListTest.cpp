// Tests of the program: the rows of "vyr undo --list" for batches that ended in different ways.
#include "VyrProgram.h"

#include <tests/VyrHost/batch/BatchScene.h>
#include <tests/VyrHost/batch/FaultyFiles.h>

#include <VyrHostPlatform/DurableFile.h>
#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>

#include <filesystem>

using namespace VyrTests;
using namespace VyrHost::Batch;
using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

namespace {

/// A batch of three renames, done in this process and listed by vyr.
class BatchList : public VyrProgram
{
protected:
    BatchList() : m_scene(m_files)
    {
        m_environment[u"VYR_JOURNAL_DIR"] = m_scene.JournalFolder();
        for (const char16_t* const name : {u"a", u"b", u"c"}) {
            m_scene.Write(name);
            m_scene.Rename(name, name + CString(u"2"));
        }
    }

    static StopRequest StopAfter(int renames)
    {
        return [left = renames]() mutable {
            return left-- == 0;
        };
    }

    void FailWhen(FileChange::Kind kind, std::u16string_view newName)
    {
        m_files.before = [kind, ending = CString(newName)](const FileChange& change, std::size_t) {
            return std::uint32_t{change.kind == kind && change.newName.Find(ending) >= 0 ? 28u : 0u};
        };
    }

    /// The state of the batch in the list.
    [[nodiscard]] std::string Listed() const
    {
        const ProgramResult result = Run({u"undo", u"--list", u"--quiet", u"--columns", u"summary"});
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        EXPECT_TRUE(result.output.ends_with('\n')) << result.output;
        return result.output.substr(0, result.output.size() - 1);
    }

    /// The part of the JSON between the time and the paths.
    [[nodiscard]] std::string ListedAsJson() const
    {
        const std::string output = Run({u"undo", u"--list", u"--json"}).output;
        const std::size_t start = output.find("\"state\"");
        return start == std::string::npos ? output : output.substr(start, output.find(",\"summary\"") - start);
    }

    FaultyFiles m_files;
    BatchScene m_scene;
};

} // namespace

TEST_F(BatchList, CountsTheEntriesOfAnAppliedBatch)
{
    m_scene.Apply();
    EXPECT_EQ(Listed(), "applied, 3 entries");
    EXPECT_EQ(ListedAsJson(), R"("state":"applied","entries":3,"renamed":3,"stopped":false)");
    m_scene.Undo();
    EXPECT_EQ(Listed(), "undone (undo 2), 3 entries");
    EXPECT_EQ(ListedAsJson(), R"("state":"undone","undo":2,"entries":3,"renamed":0,"stopped":false)");
}

TEST_F(BatchList, IsATableWithHeadingsAndATotal)
{
    m_scene.Apply();
    m_scene.list = {};
    m_scene.Rename(u"a2", u"a3");
    m_scene.Apply();
    const std::string output = Run({u"undo", u"--list"}).output;
    EXPECT_THAT(output, StartsWith("Batch  Started  "));
    EXPECT_THAT(output, EndsWith("\n2 batches.\n"));
    const std::string from = VyrPlatform::Encoding::ToUtf8(m_scene.Path(u"a"));
    EXPECT_THAT(output, HasSubstr("\n    1  "));
    EXPECT_THAT(output, HasSubstr("applied, 3 entries"));
    EXPECT_THAT(output, HasSubstr(from + "   "));
    EXPECT_THAT(output, HasSubstr("  " + from + "2\n"));
}

TEST_F(BatchList, IsSortedOnRequest)
{
    m_scene.Apply();
    m_scene.list = {};
    m_scene.Rename(u"a2", u"a3");
    m_scene.Apply();
    const auto numbers = [this](std::vector<CString> options) {
        std::vector<CString> call = {u"undo", u"--list", u"--quiet", u"--columns", u"number"};
        call.insert(call.end(), options.begin(), options.end());
        return Run(std::move(call)).output;
    };
    EXPECT_EQ(numbers({}), "2\n1\n");
    EXPECT_EQ(numbers({u"--descending"}), "1\n2\n");
    EXPECT_EQ(numbers({u"--sort", u"entries"}), "2\n1\n");
    EXPECT_EQ(numbers({u"--sort", u"Entries", u"--descending"}), "1\n2\n");
}

TEST_F(BatchList, IsATableForSpreadsheets)
{
    m_scene.Apply();
    const ProgramResult result = Run({u"undo", u"--list", u"--csv", u"--columns", u"number,state,entries"});
    EXPECT_EQ(result.output, "\xEF\xBB\xBFnumber,state,entries\r\n1,applied,3\r\n");
    EXPECT_EQ(result.errors, "1 batch.\n");
}

TEST_F(BatchList, WritesTheStartAsADateInJson)
{
    m_scene.Apply();
    const std::string output = Run({u"undo", u"--list", u"--json", u"--columns", u"started"}).output;
    EXPECT_THAT(output, MatchesRegex("\\{\"started\":\"....-..-..T..:..:..\"\\}\n"));
}

TEST_F(BatchList, TakesTheOptionsOfListsOnlyWithList)
{
    m_scene.Apply();
    for (const std::vector<CString>& options :
         {std::vector<CString>{u"--csv"}, {u"--columns", u"number"}, {u"--sort", u"number"}, {u"--descending"}}) {
        std::vector<CString> call = {u"undo"};
        call.insert(call.end(), options.begin(), options.end());
        const ProgramResult result = Run(call);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_THAT(result.errors, HasSubstr("changes nothing without --list"));
    }
    EXPECT_EQ(Run({u"undo", u"--list", u"--csv", u"--json"}).exitCode, 2);
    const ProgramResult unknown = Run({u"undo", u"--list", u"--columns", u"number,size"});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_THAT(unknown.errors, HasSubstr("the columns are number, started, command,"));
}

TEST_F(BatchList, CountsTheEntriesOfAnInterruptedBatch)
{
    m_scene.Apply(StopAfter(2));
    EXPECT_EQ(Listed(), "stopped, 2 of 3 entries");
    EXPECT_EQ(ListedAsJson(), R"("state":"applied","entries":3,"renamed":2,"stopped":true)");
    m_scene.Undo({}, StopAfter(1));
    EXPECT_EQ(Listed(), "stopped while it was undone, 1 of 3 entries left");
    EXPECT_EQ(ListedAsJson(), R"("state":"undone in part","undo":2,"entries":3,"renamed":1,"stopped":true)");
    // The rest is undone under the same number.
    EXPECT_EQ(Run({u"undo", u"1", u"--quiet"}).exitCode, 0);
    EXPECT_EQ(Listed(), "undone (undo 2), 3 entries");
}

TEST_F(BatchList, DoesNotCountEntriesThatFailed)
{
    m_scene.Write(u"b2", "in the way");
    m_scene.Apply();
    EXPECT_EQ(Listed(), "applied, 2 of 3 entries");
    m_scene.Write(u"a", "in the way");
    m_scene.Undo();
    EXPECT_EQ(Listed(), "undone in part, 1 of 3 entries left");
    EXPECT_EQ(ListedAsJson(), R"("state":"undone in part","undo":2,"entries":3,"renamed":1,"stopped":false)");
}

TEST_F(BatchList, CountsEntriesThatTheUndoDidNotFind)
{
    m_scene.Apply();
    std::filesystem::remove(ToStdPath(m_scene.Path(u"b2")));
    m_scene.Undo();
    EXPECT_EQ(Listed(), "undone (undo 2), 1 of 3 entries not undone");
    EXPECT_EQ(ListedAsJson(), R"("state":"undone","undo":2,"entries":3,"renamed":1,"stopped":false)");
}

TEST_F(BatchList, GivesNoCountForABatchThatWasCutOff)
{
    FailWhen(FileChange::Kind::RenameFile, u".applied");
    m_scene.Apply();
    EXPECT_EQ(Listed(), "cut off, at most 3 entries");
    EXPECT_EQ(ListedAsJson(), R"("state":"cut off","entries":3,"stopped":false)");
    m_files.before = {};
    m_scene.Recover(Recovery::Finish);
    EXPECT_EQ(Listed(), "applied, 3 entries");
    FailWhen(FileChange::Kind::RenameFile, u".taken-back");
    m_scene.Undo();
    EXPECT_EQ(Listed(), "cut off while it was undone, at most 3 entries");
}

TEST_F(BatchList, TellsABatchInWorkFromOneThatWasCutOff)
{
    FailWhen(FileChange::Kind::RenameFile, u".applied");
    m_scene.Apply();
    {
        const VyrHostPlatform::FileLock lock(m_scene.JournalFolder() + CString(u"/lock"));
        ASSERT_TRUE(lock.IsHeld());
        EXPECT_EQ(Listed(), "being worked on, at most 3 entries");
        EXPECT_EQ(ListedAsJson(), R"("state":"being worked on","entries":3,"stopped":false)");
    }
    EXPECT_EQ(Listed(), "cut off, at most 3 entries");
}

TEST_F(BatchList, RecoveryShowsTheDirectionOfEachEntry)
{
    m_scene.Apply();
    FailWhen(FileChange::Kind::RenameFile, u".taken-back");
    m_scene.Undo();
    const std::string before = VyrPlatform::Encoding::ToUtf8(m_scene.Path(u"a"));
    EXPECT_THAT(Run({u"recover"}).output, HasSubstr(before + "2  ->  a\n"));
    EXPECT_EQ(Listed(), "undone (undo 2), 3 entries");
    FailWhen(FileChange::Kind::RenameFile, u".applied");
    m_scene.Apply();
    EXPECT_THAT(Run({u"recover", u"--take-back"}).output, HasSubstr(before + "2  ->  a\n"));
    EXPECT_EQ(m_scene.Now(), (FolderSnapshot{{"a", "a"}, {"b", "b"}, {"c", "c"}}));
}

TEST_F(BatchList, GivesNoExactCountWhereTheJournalLacksItsEnd)
{
    FailWhen(FileChange::Kind::Append, u"");
    m_scene.Apply();
    EXPECT_EQ(Listed(), "applied, at most 3 entries");
    EXPECT_EQ(ListedAsJson(), R"("state":"applied","entries":3,"stopped":false)");
}

TEST_F(BatchList, ReportsTheDamageOfAJournal)
{
    m_scene.Apply();
    std::filesystem::resize_file(ToStdPath(m_scene.JournalFolder()) / "000001.applied", 60);
    EXPECT_THAT(Run({u"undo", u"--list"}).output, HasSubstr("  damaged: line 2: "));
    EXPECT_THAT(Run({u"undo", u"--list", u"--json"}).output, HasSubstr("\"state\":\"damaged\""));
}
