// Changes other than renames, tested with a small kind: the content of a file.
#include <VyrHost/model/Change.h>

#include <VyrHost/batch/DiskChecks.h>
#include <gmock/gmock.h>
#include <tests/VyrHost/batch/BatchScene.h>
#include <tests/VyrHost/batch/CutOffScene.h>
#include <tests/VyrHost/batch/SampleJournal.h>
#include <tests/support/Describe.h>
#include <tests/support/StdPath.h>

#include <VyrHost/model/FolderSet.h>
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <span>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace VyrHost::Batch;
using namespace VyrHost::Model;
using namespace VyrTests;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;

constexpr std::uint32_t missingFile = 2;
constexpr const char* half = "half";

/// Called before and after a file's content is set; may throw, as if the program ended then.
std::function<void(Moment moment)> onWrite;

/// Sets the content of a file, in two steps.
class ContentChange final : public Change
{
public:
    ContentChange(const CString& before, const CString& after,
                  const std::optional<VyrPlatform::FileIdentity>& file = {})
        : m_before(before), m_after(after), m_file(file)
    {}

    std::string_view Kind() const override { return "content"; }
    CString Before() const override { return m_before; }
    CString After() const override { return m_after; }
    CString ShownBefore() const override { return CString::Join({u"\"", m_before, u"\""}); }
    CString ShownAfter() const override { return CString::Join({u"\"", m_after, u"\""}); }

    std::optional<VyrPlatform::FileIdentity> OnlyFile() const override { return m_file; }

    ChangeLook Look(const CString& path) const override
    {
        const VyrPlatform::FileReader reader(path);
        if (!reader.IsOpen())
            return {ChangeState::Unknown, missingFile};
        std::string text(static_cast<std::size_t>(reader.Size()), '\0');
        text.resize(reader.ReadAt(0, std::as_writable_bytes(std::span(text))));
        const CString content = VyrPlatform::Encoding::FromUtf8(text);
        if (content == m_before || content == m_after)
            return {content == m_before ? ChangeState::Before : ChangeState::After, 0};
        return {text == half ? ChangeState::Partly : ChangeState::Other, 0};
    }
    std::uint32_t Apply(const CString& path) const override { return Write(path, m_after); }
    std::uint32_t Undo(const CString& path) const override { return Write(path, m_before); }

private:
    static std::uint32_t Write(const CString& path, const CString& content)
    {
        std::ofstream(ToStdPath(path)) << half;
        if (onWrite)
            onWrite(Moment::Before);
        std::ofstream(ToStdPath(path)) << VyrPlatform::Encoding::ToUtf8(content);
        if (onWrite)
            onWrite(Moment::After);
        return 0;
    }

    CString m_before;
    CString m_after;
    std::optional<VyrPlatform::FileIdentity> m_file;
};

ChangeKinds KindsOfTest()
{
    return {{"content", [](const CString& before, const CString& after) -> std::shared_ptr<const Change> {
                 if (before == after)
                     return nullptr;
                 return std::make_shared<ContentChange>(before, after);
             }}};
}

/// Three files, and batches that change their contents.
class Changes : public testing::Test
{
protected:
    Changes()
    {
        onWrite = {};
        for (const char16_t* name : {u"a", u"b", u"c"})
            m_scene.Write(name, "old");
    }
    ~Changes() override { onWrite = {}; }

    /// A batch that changes the contents of `names`.
    [[nodiscard]] NewBatch Make(const std::vector<std::u16string_view>& names) const
    {
        NewBatch batch;
        batch.command = u"contents";
        const CString folder = VyrHost::Model::FolderPart(m_scene.Path(u"a"));
        std::u16string_view rest = folder;
        while (!rest.empty()) {
            std::size_t end = 0;
            while (!VyrPlatform::FileSystem::IsSeparator(rest[end]))
                ++end;
            const bool isRoot = batch.plan.folders.empty();
            PlanFolder& added = batch.plan.folders.emplace_back();
            added.place.folder = isRoot ? none : static_cast<PlanIndex>(batch.plan.folders.size() - 2);
            added.place.name = batch.plan.texts->Intern(rest.substr(0, isRoot ? end + 1 : end));
            rest.remove_prefix(end + 1);
        }
        for (const std::u16string_view name : names)
            batch.changes.push_back(
                {{static_cast<PlanIndex>(batch.plan.folders.size() - 1), batch.plan.texts->Intern(name)},
                 std::make_shared<ContentChange>(u"old", u"new")});
        return batch;
    }

    BatchSummary Apply(const StopRequest& isStopAsked = {})
    {
        m_results.clear();
        return m_scene.batches.Apply(
            [this] {
                return Make({u"a", u"b", u"c"});
            },
            [this](std::size_t index, const Outcome& result) {
                m_results.resize(std::max(m_results.size(), index + 1));
                m_results[index] = result;
            },
            isStopAsked);
    }

    /// Applies changes to 600 files, which `fileOf` tells by their index, and undoes them.
    /// @return how many threads applied them.
    std::size_t ApplyToMany(const std::function<std::uint64_t(std::size_t index)>& fileOf)
    {
        constexpr std::size_t count = 600;
        std::vector<CString> names(count);
        for (std::size_t index = 0; index < count; ++index) {
            names[index].Format(u"many %u", index);
            m_scene.Write(names[index], "old");
        }
        NewBatch batch = Make({names.begin(), names.end()});
        for (std::size_t index = 0; index < count; ++index)
            batch.changes[index].change =
                std::make_shared<ContentChange>(u"old", u"new", VyrPlatform::FileIdentity{1, fileOf(index)});
        std::mutex mutex;
        std::set<std::thread::id> threads;
        onWrite = [&](Moment) {
            const std::lock_guard lock(mutex);
            threads.insert(std::this_thread::get_id());
        };
        std::size_t reported = 0;
        const auto report = [&reported](std::size_t index, const Outcome& result) {
            EXPECT_EQ(index, reported++);
            EXPECT_EQ(result.status, Status::Done);
        };
        EXPECT_EQ(m_scene.batches.Apply([&batch] { return std::move(batch); }, report, {}).done, count);
        const std::size_t used = threads.size();
        EXPECT_EQ(m_scene.Undo().done, count);
        for (const auto& [name, content] : m_scene.Now())
            EXPECT_EQ(content, "old") << name;
        return used;
    }

    static FolderSnapshot AllAre(const std::string& content)
    {
        return {{"a", content}, {"b", content}, {"c", content}};
    }

    BatchScene m_scene{SystemFiles(), KindsOfTest()};
    std::vector<Outcome> m_results;
};

TEST_F(Changes, AreAppliedUndoneAndRedone)
{
    const BatchSummary applied = Apply();
    EXPECT_EQ(applied.error, u"");
    EXPECT_EQ(applied.number, 1u);
    EXPECT_EQ(applied.done, 3u);
    EXPECT_EQ(m_scene.Now(), AllAre("new"));
    EXPECT_THAT(m_scene.JournalFiles(), ElementsAre("000001.applied"));

    const BatchSummary undone = m_scene.Undo();
    EXPECT_EQ(undone.error, u"");
    EXPECT_EQ(undone.done, 3u);
    EXPECT_EQ(m_scene.Now(), AllAre("old"));
    EXPECT_THAT(m_scene.JournalFiles(), ElementsAre("000001.taken-back-000002"));
    ASSERT_EQ(m_scene.entries.size(), 3u);
    EXPECT_EQ(m_scene.entries[0].before, m_scene.Path(u"c"));
    ASSERT_TRUE(m_scene.entries[0].change);
    EXPECT_EQ(m_scene.entries[0].change->ShownAfter(), u"\"new\"");

    EXPECT_EQ(m_scene.Redo(2).done, 3u);
    EXPECT_EQ(m_scene.Now(), AllAre("new"));
    EXPECT_EQ(m_scene.Undo().done, 3u);
    EXPECT_EQ(m_scene.Now(), AllAre("old"));
}

TEST_F(Changes, AreListedWithTheirCommandAndFolder)
{
    Apply();
    const std::vector<BatchInformation> batches = m_scene.batches.List();
    ASSERT_EQ(batches.size(), 1u);
    EXPECT_EQ(batches[0].command, u"contents");
    EXPECT_EQ(batches[0].folder + CString(VyrPlatform::FileSystem::Separator(), 1),
              CString(VyrHost::Model::FolderPart(m_scene.Path(u"a"))));
    EXPECT_EQ(batches[0].entries, 3u);
    EXPECT_EQ(batches[0].renamed, 3u);
    EXPECT_EQ(batches[0].firstFrom, m_scene.Path(u"a"));
    EXPECT_EQ(batches[0].firstTo, u"\"new\"");
}

TEST_F(Changes, DoNotUndoWhatAnotherProgramHasChangedSince)
{
    Apply();
    m_scene.Write(u"b", "mine");
    const BatchSummary undone = m_scene.Undo();
    EXPECT_EQ(undone.done, 2u);
    EXPECT_EQ(undone.refused, 1u);
    EXPECT_EQ(m_scene.Now(), (FolderSnapshot{{"a", "old"}, {"b", "mine"}, {"c", "old"}}));
    EXPECT_EQ(m_scene.entries[1].result.reason, u"another program has changed it since");
}

TEST_F(Changes, AreNotAppliedToFilesThatHaveChangedSinceTheyWereListed)
{
    m_scene.Write(u"a", "mine");
    std::filesystem::remove(ToStdPath(m_scene.Path(u"c")));
    const BatchSummary applied = Apply();
    EXPECT_EQ(applied.done, 1u);
    EXPECT_EQ(applied.refused, 1u);
    EXPECT_EQ(applied.failed, 1u);
    ASSERT_EQ(m_results.size(), 3u);
    EXPECT_EQ(m_results[2].error, missingFile);
    // A change that was not applied is not undone, whatever the file contains by now.
    m_scene.Write(u"a", "new");
    EXPECT_EQ(m_scene.Undo().done, 1u);
    EXPECT_EQ(m_scene.Now(), (FolderSnapshot{{"a", "new"}, {"b", "old"}}));
}

TEST_F(Changes, AreNotAppliedAfterAStop)
{
    const BatchSummary applied = Apply([left = 1]() mutable { return left-- == 0; });
    EXPECT_TRUE(applied.wasStopped);
    EXPECT_EQ(applied.done, 1u);
    EXPECT_EQ(applied.notReached, 2u);
    EXPECT_EQ(m_scene.Now(), (FolderSnapshot{{"a", "new"}, {"b", "old"}, {"c", "old"}}));
    EXPECT_EQ(m_scene.Undo().done, 1u);
    EXPECT_EQ(m_scene.Now(), AllAre("old"));
}

TEST_F(Changes, OfManyFilesAreAppliedOnTwoThreads)
{
    EXPECT_EQ(ApplyToMany([](std::size_t index) { return index; }), 2u);
}

TEST_F(Changes, AreAppliedOneAfterTheOtherWhereTwoNamesAreOfOneFile)
{
    EXPECT_EQ(ApplyToMany([](std::size_t index) { return index == 500 ? 100 : index; }), 1u);
}

TEST_F(Changes, AreRecoveredWhereverTheyWereCutOff)
{
    for (const Recovery recovery : {Recovery::Finish, Recovery::Undo})
        for (int write = 0; write < 6; ++write) {
            for (const char16_t* name : {u"a", u"b", u"c"})
                m_scene.Write(name, "old");
            onWrite = [left = write](Moment) mutable {
                if (left-- == 0)
                    throw CutOff();
            };
            ASSERT_TRUE(IsCutOff([this] { Apply(); })) << write;
            onWrite = {};
            ASSERT_TRUE(m_scene.batches.FindCutOff()) << write;
            EXPECT_EQ(m_scene.Recover(recovery).error, u"");
            EXPECT_EQ(m_scene.Now(), AllAre(recovery == Recovery::Finish ? "new" : "old")) << write;
            EXPECT_FALSE(m_scene.batches.FindCutOff());
        }
}

TEST_F(Changes, OfAnUnknownKindAreRefusedAndTheirJournalIsKept)
{
    Apply();
    const std::filesystem::path journal = ToStdPath(m_scene.JournalFolder()) / "000001.applied";
    std::ostringstream before;
    before << std::ifstream(journal, std::ios::binary).rdbuf();
    EXPECT_THAT(before.str(), HasSubstr("\ncontent\t"));
    m_scene.batches = Batches(SystemFiles(), SettingsIn(m_scene.JournalFolder()));
    const BatchSummary undone = m_scene.Undo(1);
    EXPECT_GE(undone.error.Find(u"it holds a kind of change that this program does not know: content"), 0);
    EXPECT_EQ(undone.obstacle, Obstacle::JournalNotRead);
    EXPECT_EQ(m_scene.Now(), AllAre("new"));
    std::ostringstream after;
    after << std::ifstream(journal, std::ios::binary).rdbuf();
    EXPECT_EQ(after.str(), before.str());
}

TEST_F(Changes, WithTextsThatTheirKindNeverWritesAreRefused)
{
    Journal journal;
    NewBatch batch = Make({u"a"});
    journal.plan = std::move(batch.plan);
    journal.changes = std::move(batch.changes);
    const std::string text = TextOf(journal);
    CString problem;
    ASSERT_TRUE(ReadJournal(text, problem, KindsOfTest()));
    journal.changes[0].change = std::make_shared<ContentChange>(u"same", u"same");
    EXPECT_FALSE(ReadJournal(TextOf(journal), problem, KindsOfTest()));
    EXPECT_GE(problem.Find(u"a change is not valid"), 0);
    journal.changes[0] = {{0, journal.plan.texts->Intern(u"..")}, std::make_shared<ContentChange>(u"old", u"new")};
    EXPECT_FALSE(ReadJournal(TextOf(journal), problem, KindsOfTest()));
}

TEST_F(Changes, TellWhichFilesWereProtectedWhenTheLastWorkOnThemBegan)
{
    Journal journal;
    NewBatch batch = Make({u"a", u"b", u"c"});
    journal.plan = std::move(batch.plan);
    journal.changes = std::move(batch.changes);
    std::uint32_t check = 0;
    std::string text = TextOf(journal, check);
    const auto protectedFiles = [&text] {
        CString problem;
        const auto read = ReadJournal(text, problem, KindsOfTest());
        EXPECT_TRUE(read) << VyrPlatform::Encoding::ToUtf8(problem);
        std::map<PlanIndex, CString> files;
        for (const ProtectedFile& file : read->protectedFiles)
            files.emplace(file.change, file.state);
        return files;
    };
    EXPECT_TRUE(protectedFiles().empty());
    text += WriteProtected({{0, u"0444 - -"}, {2, u"0400 - -"}}, check);
    EXPECT_THAT(protectedFiles(), ElementsAre(Pair(0u, CString(u"0444 - -")), Pair(2u, CString(u"0400 - -"))));
    text += WriteProtected({{1, u"0444 - -"}}, check);
    EXPECT_THAT(protectedFiles(), ElementsAre(Pair(1u, CString(u"0444 - -"))));
    text += WriteProtected({}, check);
    EXPECT_TRUE(protectedFiles().empty());
    text += WriteProtected({{1, u"0444 - -"}}, check) + WriteCheckpoint(CheckpointAt({}), check);
    EXPECT_TRUE(protectedFiles().empty());
    text += WriteProtected({{3, u"0444 - -"}}, check);
    CString problem;
    EXPECT_FALSE(ReadJournal(text, problem, KindsOfTest()));
    EXPECT_GE(problem.Find(u"a protected file belongs to no change"), 0);
}

TEST_F(Changes, AndRenamesOfTheSameFilesCanBeInOneBatch)
{
    m_scene.Rename(u"a", u"x").Rename(u"b", u"a");
    const auto make = [this] {
        NewBatch batch = Make({u"a", u"b"});
        const PlanIndex folder = batch.changes[0].place.folder;
        const auto place = [&](std::u16string_view name) {
            return Place{folder, batch.plan.texts->Intern(name)};
        };
        batch.plan.entries.resize(2);
        batch.plan.entries[0].from = place(u"a");
        batch.plan.entries[0].to = place(u"x");
        batch.plan.entries[1].from = place(u"b");
        batch.plan.entries[1].to = place(u"a");
        batch.plan.entries[1].waitsFor = 0;
        batch.plan.steps = {{PlanStep::Action::Rename, 0}, {PlanStep::Action::Rename, 1}};
        batch.states = LookAtSources(batch.plan, SystemFiles());
        return batch;
    };
    const BatchSummary applied = m_scene.batches.Apply(make, [](std::size_t, const Outcome&) {}, {});
    EXPECT_EQ(applied.error, u"");
    EXPECT_EQ(applied.done, 4u);
    EXPECT_EQ(m_scene.Now(), (FolderSnapshot{{"a", "new"}, {"c", "old"}, {"x", "new"}}));
    EXPECT_EQ(m_scene.Undo().done, 4u);
    EXPECT_EQ(m_scene.Now(), AllAre("old"));
}

} // namespace
