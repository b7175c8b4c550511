// Tests of the program itself: killed in the middle of a batch, and what "vyr recover" and "vyr undo" make of that.
#include <tests/VyrHost/cli/VyrProgram.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <set>
#include <sstream>
#include <thread>

namespace {

using namespace VyrTests;
namespace fs = std::filesystem;

class KilledProgram : public VyrProgram
{
protected:
    static constexpr int plainRenames = 300;

    using FolderSnapshot = std::map<std::string, std::string>;

    /// Between the plain renames there are swaps and cycles, so that any of them may be cut off.
    void Arrange()
    {
        m_environment[u"VYR_JOURNAL_DIR"] = m_journalFolder.Path(u"journal");
        for (int index = 0; index < plainRenames; ++index) {
            const std::string number = std::to_string(index);
            Add("old " + number, "new " + number);
            if (index % 10 == 0) {
                Add("left " + number, "right " + number);
                Add("right " + number, "left " + number);
            }
            if (index % 100 == 50)
                for (int part = 0; part < 5; ++part)
                    Add("cycle " + number + " " + std::to_string(part),
                        "cycle " + number + " " + std::to_string((part + 1) % 5));
        }
        fs::create_directory(ToStdPath(m_files.Path(u"files")));
        for (const auto& [name, content] : m_before)
            std::ofstream(FilePath(name), std::ios::binary) << content;
    }

    [[nodiscard]] std::vector<CString> RenameAll() const
    {
        return {u"rename", u"--pairs", m_files.Path(u"pairs.csv"), u"--apply", u"--quiet"};
    }

    void WritePairs() const { std::ofstream(ToStdPath(m_files.Path(u"pairs.csv")), std::ios::binary) << m_pairs; }

    [[nodiscard]] FolderSnapshot Now() const
    {
        FolderSnapshot tree;
        for (const fs::directory_entry& entry : fs::directory_iterator(ToStdPath(m_files.Path(u"files")))) {
            std::ostringstream content;
            content << std::ifstream(entry.path(), std::ios::binary).rdbuf();
            tree[entry.path().filename().string()] = std::move(content).str();
        }
        return tree;
    }

    [[nodiscard]] static std::multiset<std::string> ContentsOf(const FolderSnapshot& tree)
    {
        std::multiset<std::string> contents;
        for (const auto& [name, content] : tree)
            contents.insert(content);
        return contents;
    }

    [[nodiscard]] fs::path FilePath(const std::string& name) const { return ToStdPath(m_files.Path(u"files")) / name; }

    /// Starts `arguments`, and kills it as soon as `isTime`.
    void KillWhen(const std::vector<CString>& arguments, const std::function<bool()>& isTime)
    {
        ProgramCall call = CallOf(arguments);
        call.folder = m_files.Path(u"files");
        ChildProcess child(call);
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        while (!isTime() && std::chrono::steady_clock::now() < end)
            std::this_thread::yield();
        child.Kill();
        static_cast<void>(child.Wait());
        ASSERT_TRUE(isTime());
    }
    void KillWhenThere(const std::vector<CString>& arguments, const std::string& name)
    {
        KillWhen(arguments, [path = FilePath(name)] { return fs::exists(path); });
    }

    /// Recovers in one of the two ways, which a preview offers before. Counts in `m_recovered` when there was something
    /// to recover.
    void Recover(bool isUndone)
    {
        const ProgramResult preview = Run({u"rename", u"--prefix", u"x", u"nothing"});
        const ProgramResult result =
            isUndone ? Run({u"recover", u"--take-back"}) : Run(std::vector<CString>{u"recover"});
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        const bool isCutOff = result.output.find("No batch was cut off") == std::string::npos;
        EXPECT_EQ(preview.errors.find("\"vyr recover\" ends it") != std::string::npos, isCutOff) << preview.errors;
        m_recovered += isCutOff;
    }

    ScratchFolder m_files;
    ScratchFolder m_journalFolder;
    FolderSnapshot m_before;
    FolderSnapshot m_after;
    int m_recovered = 0;

private:
    void Add(const std::string& from, const std::string& to)
    {
        m_before[from] = "content of " + from;
        m_after[to] = "content of " + from;
        m_pairs += from + "," + to + "\n";
    }

    std::string m_pairs;
};

TEST_F(KilledProgram, LeavesEveryFileAndItsBatchCanBeUndoneOrFinished)
{
    Arrange();
    WritePairs();
    constexpr int kills = 8;
    for (int kill = 0; kill < kills; ++kill) {
        SCOPED_TRACE(kill);
        // From the first rename on; behind the middle it could end before it is killed.
        const int index = kill * plainRenames / 2 / (kills - 1);
        KillWhenThere(RenameAll(), "new " + std::to_string(index));
        EXPECT_EQ(ContentsOf(Now()), ContentsOf(m_before));
        const bool isUndone = kill % 2 == 0;
        Recover(isUndone);
        // One that had ended before it was killed is not cut off.
        FolderSnapshot now = Now();
        if (!isUndone || now != m_before) {
            EXPECT_EQ(now, m_after);
            EXPECT_EQ(Run({u"undo", u"--quiet"}).exitCode, 0);
            now = Now();
        }
        ASSERT_EQ(now, m_before);
    }
    EXPECT_GT(m_recovered, 0);
    RecordProperty("recovered", m_recovered);
}

TEST_F(KilledProgram, LosesNothingWhenItIsKilledOverItsJournal)
{
    Arrange();
    WritePairs();
    for (int kill = 0; kill < 4; ++kill) {
        SCOPED_TRACE(kill);
        CString folder;
        folder.Format(u"journal %d", kill);
        m_environment[u"VYR_JOURNAL_DIR"] = m_journalFolder.Path(folder);
        const fs::path journal = ToStdPath(m_journalFolder.Path(folder));
        // While it is being written, and when it is whole.
        KillWhen(RenameAll(), [&journal, mayBeNew = kill % 2 == 0] {
            return fs::exists(journal / "000001.applying") || fs::exists(journal / "000001.applied") ||
                   (mayBeNew && fs::exists(journal / "000001.new"));
        });
        EXPECT_EQ(ContentsOf(Now()), ContentsOf(m_before));
        Recover(true);
        if (fs::exists(journal / "000001.applied")) {
            EXPECT_EQ(Run({u"undo", u"--quiet"}).exitCode, 0);
        }
        ASSERT_EQ(Now(), m_before);
    }
}

TEST_F(KilledProgram, UndoCanBeKilledToo)
{
    Arrange();
    WritePairs();
    constexpr int kills = 4;
    for (int kill = 0; kill < kills; ++kill) {
        SCOPED_TRACE(kill);
        ProgramCall call = CallOf(RenameAll());
        call.folder = m_files.Path(u"files");
        ASSERT_EQ(RunProgram(call).exitCode, 0);
        // Backward: the last is renamed first.
        const int index = plainRenames - 1 - kill * plainRenames / 2 / (kills - 1);
        KillWhenThere({u"undo", u"--quiet"}, "old " + std::to_string(index));
        EXPECT_EQ(ContentsOf(Now()), ContentsOf(m_before));
        Recover(false);
        ASSERT_EQ(Now(), m_before);
    }
    EXPECT_GT(m_recovered, 0);
    RecordProperty("recovered", m_recovered);
}

} // namespace
