// Tests of the program: killed between any two of its changes, then recovered and undone by "vyr recover" and "vyr
// undo".
#include <tests/VyrHost/cli/VyrProgram.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

namespace {

using namespace VyrTests;
namespace fs = std::filesystem;

class KilledProgram : public VyrProgram
{
protected:
    static constexpr int plainRenames = 20;

    using FolderSnapshot = std::map<std::string, std::string>;

    /// Between the plain renames there are swaps and cycles, so that each sort is cut off.
    void Arrange()
    {
        for (int index = 0; index < plainRenames; ++index) {
            const std::string number = std::to_string(index);
            Add("old " + number, "new " + number);
            if (index % 10 == 0) {
                Add("left " + number, "right " + number);
                Add("right " + number, "left " + number);
            }
            if (index % 30 == 15)
                for (int part = 0; part < 5; ++part)
                    Add("cycle " + number + " " + std::to_string(part),
                        "cycle " + number + " " + std::to_string((part + 1) % 5));
        }
        fs::create_directory(ToStdPath(m_files.Path(u"files")));
        for (const auto& [name, content] : m_before)
            std::ofstream(FilePath(name), std::ios::binary) << content;
        std::ofstream(ToStdPath(m_files.Path(u"pairs.csv")), std::ios::binary) << m_pairs;
    }

    [[nodiscard]] ProgramCall RenameAll() const
    {
        return InFiles({u"rename", u"--pairs", m_files.Path(u"pairs.csv"), u"--apply", u"--quiet"});
    }
    [[nodiscard]] ProgramCall UndoAll() const { return InFiles({u"undo", u"--quiet"}); }

    /// The program now keeps its journal in a folder that does not exist yet, so that it makes the same changes in each
    /// run.
    void BeginJournal()
    {
        CString folder;
        folder.Format(u"journal %d", m_journals++);
        m_environment[u"VYR_JOURNAL_DIR"] = m_journalFolder.Path(folder);
    }

    [[nodiscard]] FolderSnapshot Now() const
    {
        FolderSnapshot files;
        for (const fs::directory_entry& entry : fs::directory_iterator(ToStdPath(m_files.Path(u"files")))) {
            std::ostringstream content;
            content << std::ifstream(entry.path(), std::ios::binary).rdbuf();
            files[entry.path().filename().string()] = std::move(content).str();
        }
        return files;
    }

    [[nodiscard]] static std::multiset<std::string> ContentsOf(const FolderSnapshot& files)
    {
        std::multiset<std::string> contents;
        for (const auto& [name, content] : files)
            contents.insert(content);
        return contents;
    }

    /// Starts a program, lets it make `changes`, and kills it before the next one.
    void KillAfter(int changes, ProgramCall call) const
    {
        call.stopsAtChanges = true;
        ChildProcess child(call);
        for (int change = 0; change <= changes; ++change)
            ASSERT_TRUE(child.GoToNextChange());
        child.Kill();
        EXPECT_NE(child.Wait().exitCode, 0);
        EXPECT_EQ(ContentsOf(Now()), ContentsOf(m_before));
    }

    /// Recovers in one of the two directions, which a preview names before.
    /// @return whether there was something to recover, as when only some files are renamed.
    bool Recover(bool isUndone) const
    {
        const FolderSnapshot now = Now();
        const ProgramResult preview = Run({u"rename", u"--prefix", u"x", u"nothing"});
        const ProgramResult result =
            isUndone ? Run({u"recover", u"--take-back"}) : Run(std::vector<CString>{u"recover"});
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        const bool isCutOff = result.output.find("No batch was cut off") == std::string::npos;
        EXPECT_EQ(preview.errors.find("\"vyr recover\" ends it") != std::string::npos, isCutOff) << preview.errors;
        EXPECT_TRUE(isCutOff || now == m_before || now == m_after);
        return isCutOff;
    }

    ScratchFolder m_files;
    ScratchFolder m_journalFolder;
    FolderSnapshot m_before;
    FolderSnapshot m_after;

private:
    void Add(const std::string& from, const std::string& to)
    {
        m_before[from] = "content of " + from;
        m_after[to] = "content of " + from;
        m_pairs += from + "," + to + "\n";
    }

    [[nodiscard]] fs::path FilePath(const std::string& name) const { return ToStdPath(m_files.Path(u"files")) / name; }

    [[nodiscard]] ProgramCall InFiles(const std::vector<CString>& arguments) const
    {
        ProgramCall call = CallOf(arguments);
        call.folder = m_files.Path(u"files");
        return call;
    }

    std::string m_pairs;
    int m_journals = 0;
};

TEST_F(KilledProgram, LeavesEveryFileAndItsBatchCanBeUndoneOrFinished)
{
    Arrange();
    BeginJournal();
    const int changes = CountChanges(RenameAll());
    ASSERT_EQ(Now(), m_after);
    ASSERT_EQ(RunProgram(UndoAll()).exitCode, 0);
    const int first = FirstOwnChange();
    constexpr int kills = 10;
    int recovered = 0;
    for (int kill = 0; kill < kills; ++kill) {
        const int made = first + kill * (changes - 1 - first) / (kills - 1);
        SCOPED_TRACE(made);
        BeginJournal();
        ASSERT_NO_FATAL_FAILURE(KillAfter(made, RenameAll()));
        const bool isUndone = kill % 2 == 0;
        const bool wasAsBefore = Now() == m_before;
        const bool isRecovered = Recover(isUndone);
        recovered += isRecovered;
        const bool isDone = isRecovered ? !isUndone : !wasAsBefore;
        EXPECT_EQ(Now(), isDone ? m_after : m_before);
        if (isDone) {
            EXPECT_EQ(RunProgram(UndoAll()).exitCode, 0);
        }
        ASSERT_EQ(Now(), m_before);
    }
    // The other kills come before the journal is created, or after it is closed.
    EXPECT_GT(recovered, 1);
}

TEST_F(KilledProgram, LosesNothingWhenItIsKilledWhileItWritesItsJournal)
{
    Arrange();
    int recovered = 0;
    // Before each change up to the first rename of a file, and after it.
    for (int made = 0; Now() == m_before; ++made) {
        SCOPED_TRACE(made);
        BeginJournal();
        ASSERT_NO_FATAL_FAILURE(KillAfter(made, RenameAll()));
        if (Now() == m_before)
            recovered += Recover(true);
    }
    EXPECT_GT(recovered, 0);
    EXPECT_TRUE(Recover(true));
    EXPECT_EQ(Now(), m_before);
}

TEST_F(KilledProgram, UndoCanBeKilled)
{
    Arrange();
    BeginJournal();
    ASSERT_EQ(RunProgram(RenameAll()).exitCode, 0);
    const int changes = CountChanges(UndoAll());
    ASSERT_EQ(Now(), m_before);
    const int first = FirstOwnChange();
    constexpr int kills = 6;
    int recovered = 0;
    for (int kill = 0; kill < kills; ++kill) {
        const int made = first + kill * (changes - 1 - first) / (kills - 1);
        SCOPED_TRACE(made);
        BeginJournal();
        ASSERT_EQ(RunProgram(RenameAll()).exitCode, 0);
        ASSERT_NO_FATAL_FAILURE(KillAfter(made, UndoAll()));
        const bool isRecovered = Recover(false);
        recovered += isRecovered;
        if (Now() == m_after) {
            EXPECT_FALSE(isRecovered);
            EXPECT_EQ(RunProgram(UndoAll()).exitCode, 0);
        }
        ASSERT_EQ(Now(), m_before);
    }
    // The other kills come before the journal is created, or after it is closed.
    EXPECT_GT(recovered, 1);
}

} // namespace
