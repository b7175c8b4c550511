// Journals of version 2, written by hand: they are still undone, redone and recovered.
#include <VyrHost/batch/Batches.h>

#include <gmock/gmock.h>
#include <tests/VyrHost/batch/BatchScene.h>
#include <tests/VyrHost/batch/SampleJournal.h>
#include <tests/support/Describe.h>
#include <tests/support/StdPath.h>

#include <VyrHost/batch/JournalLines.h>
#include <VyrHost/batch/JournalText.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileSystem.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace {

using namespace VyrHost::Batch;
using namespace VyrTests;

/// Two files "a" and "b" that swap their names, and "c", which becomes "d".
class VersionTwo : public testing::Test
{
protected:
    VersionTwo()
    {
        for (const char16_t* name : {u"a", u"b", u"c"})
            m_scene.Write(name);
        std::filesystem::create_directories(ToStdPath(m_scene.JournalFolder()));
    }

    static std::string Written(std::u16string_view name)
    {
        std::string text;
        AppendJournalName(text, name);
        return text;
    }

    /// The journal's line for the file that was called `name` and is at `now`.
    [[nodiscard]] std::string EntryLine(const std::string& name, const CString& now, const std::string& rest) const
    {
        const VyrPlatform::FileState state = VyrPlatform::LookAtFile(m_scene.Path(now));
        return "entry\tf\t" + std::to_string(state.identity.device) + "\t" + std::to_string(state.identity.number) +
               "\t" + std::to_string(state.size) + "\t" + std::to_string(state.modified) + "\t" +
               std::to_string(state.links) + "\t" + std::to_string(m_folders - 1) + "\t" + name + "\t" +
               std::to_string(m_folders - 1) + "\t" + rest + "\n";
    }

    /// The journal while the files are at `a`, `b` and `c`.
    [[nodiscard]] std::string Text(const CString& a, const CString& b, const CString& c)
    {
        std::string folders;
        const CString path = m_scene.Path(u"");
        std::u16string_view rest = path;
        for (m_folders = 0; !rest.empty(); ++m_folders) {
            std::size_t end = 0;
            while (end < rest.size() && !VyrPlatform::FileSystem::IsSeparator(rest[end]))
                ++end;
            const bool isRoot = m_folders == 0;
            folders += "folder\t" + (isRoot ? "-" : std::to_string(m_folders - 1)) + "\to\t" +
                       Written(rest.substr(0, isRoot ? end + 1 : end)) + "\n";
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
        const std::string heading = "vyr-journal\t2\nbatch\t1\t77\t2024/05/06 07:08:09\t" + std::to_string(m_folders) +
                                    "\t3\t4\t" + Written(m_scene.Path(u"a")) + "\t" + Written(m_scene.Path(u"b"));
        return WithCheck(WithCheck(heading) + folders + EntryLine("a", a, "b\t-\t1") + EntryLine("b", b, "a\t-\t0") +
                         EntryLine("c", c, "d\t-\t-") + "steps\ta0\tr1\tr0\tr2\nend");
    }

    void Keep(const std::string& name, const std::string& text) const
    {
        std::ofstream(ToStdPath(m_scene.JournalFolder()) / name, std::ios::binary) << text;
    }

    void MoveFile(const char* from, const char* to) const
    {
        const std::filesystem::path folder = ToStdPath(m_scene.Path(u""));
        std::filesystem::rename(folder / from, folder / to);
    }

    BatchScene m_scene;
    std::size_t m_folders = 0;
};

const FolderSnapshot before{{"a", "a"}, {"b", "b"}, {"c", "c"}};
const FolderSnapshot after{{"a", "b"}, {"b", "a"}, {"d", "c"}};

TEST_F(VersionTwo, IsListedUndoneAndRedone)
{
    const std::string text = Text(u"a", u"b", u"c");
    MoveFile("a", "t");
    MoveFile("b", "a");
    MoveFile("t", "b");
    MoveFile("c", "d");
    ASSERT_EQ(m_scene.Now(), after);
    const std::string mark = "mark\tf\te\t\t\t";
    const std::uint32_t check = BitwiseCrc(0, text.substr(0, text.rfind('\t')));
    Keep("000001.applied", text + "\n" + mark + CheckField(BitwiseCrc(check, mark)));
    const std::vector<BatchInformation> batches = m_scene.batches.List();
    ASSERT_EQ(batches.size(), 1u);
    EXPECT_EQ(batches[0].state, BatchState::Applied);
    EXPECT_EQ(batches[0].entries, 3u);
    EXPECT_EQ(batches[0].renamed, 3u);
    EXPECT_EQ(batches[0].command, u"");
    EXPECT_EQ(batches[0].folder, u"");
    const BatchSummary undone = m_scene.Undo(1);
    EXPECT_EQ(undone.error, u"");
    EXPECT_EQ(undone.done, 3u);
    EXPECT_EQ(m_scene.Now(), before);
    EXPECT_EQ(m_scene.batches.List().at(0).state, BatchState::Undone);
    EXPECT_EQ(m_scene.Redo(2).done, 3u);
    EXPECT_EQ(m_scene.Now(), after);
}

TEST_F(VersionTwo, IsRecoveredBothWays)
{
    for (const Recovery recovery : {Recovery::Finish, Recovery::Undo}) {
        for (const std::string name : {"a", "b", "c", "d"})
            std::filesystem::remove(ToStdPath(m_scene.Path(u"")) / name);
        for (const char16_t* name : {u"a", u"b", u"c"})
            m_scene.Write(name);
        Keep("000001.applying", Text(u"a", u"b", u"c"));
        // It was cut off while "a" had its temporary name.
        MoveFile("a", ".vyr-000000000000004d-0.tmp");
        MoveFile("b", "a");
        EXPECT_EQ(m_scene.Recover(recovery).error, u"");
        EXPECT_EQ(m_scene.Now(), recovery == Recovery::Finish ? after : before);
        EXPECT_FALSE(m_scene.batches.FindCutOff());
        for (const std::string& name : m_scene.JournalFiles())
            std::filesystem::remove(ToStdPath(m_scene.JournalFolder()) / name);
    }
}

TEST_F(VersionTwo, IsNotChangedWhereTheVersionIsUnknown)
{
    Keep("000001.applied", "vyr-journal\t4\nwhatever\n");
    const BatchSummary undone = m_scene.Undo(1);
    EXPECT_GE(undone.error.Find(u"line 1: it is of a version that this program does not know"), 0);
    EXPECT_EQ(undone.obstacle, Obstacle::JournalNotRead);
    EXPECT_EQ(m_scene.Now(), before);
    EXPECT_THAT(m_scene.JournalFiles(), testing::ElementsAre("000001.applied"));
}

} // namespace
