// Redo, and previews of undo and redo.
#include <gmock/gmock.h>
#include <tests/VyrHost/batch/BatchScene.h>
#include <tests/VyrHost/batch/CutOffScene.h>
#include <tests/VyrHost/batch/FaultyFiles.h>
#include <tests/support/Describe.h>
#include <tests/support/StdPath.h>

#include <filesystem>

namespace {

using namespace VyrHost::Batch;
using namespace VyrHost::Model;
using namespace VyrTests;
using testing::ElementsAre;

const FolderSnapshot before{{"a", "a"}, {"b", "b"}, {"c", "c"}};
const FolderSnapshot after{{"x", "a"}, {"y", "b"}, {"z", "c"}};

TEST(Redo, RepeatsTheBatchAndTheNextUndoHasANewNumber)
{
    BatchScene scene;
    ArrangeThree(scene);
    scene.Apply();
    EXPECT_EQ(scene.Undo().undo, 2u);
    const BatchSummary redone = scene.Redo(2);
    EXPECT_EQ(redone.error, u"");
    EXPECT_EQ(redone.number, 1u);
    EXPECT_EQ(redone.done, 3u);
    EXPECT_EQ(scene.Now(), after);
    EXPECT_THAT(scene.JournalFiles(), ElementsAre("000001.applied-000002"));
    EXPECT_EQ(scene.Redo(2).error, u"the undo is redone already");
    EXPECT_EQ(scene.Redo(1).error, u"the journal has no undo of this number");
    EXPECT_EQ(scene.Undo().undo, 3u);
    EXPECT_EQ(scene.Now(), before);
}

TEST(Redo, HandlesSwapsAndNewFolders)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.Write(u"b");
    scene.Write(u"c");
    scene.NewFolder(u"n").Rename(u"a", u"b").Rename(u"b", u"a").Rename(u"c", u"n/c");
    scene.Apply();
    const FolderSnapshot applied = scene.Now();
    scene.Undo();
    EXPECT_EQ(scene.Redo(2).done, 3u);
    EXPECT_EQ(scene.Now(), applied);
    scene.Undo();
    EXPECT_EQ(scene.Now(), before);
}

TEST(Redo, DoesNotDoWhatTheBatchHadNotDone)
{
    BatchScene scene;
    ArrangeThree(scene);
    scene.Write(u"y", "in the way");
    scene.Apply();
    scene.Undo();
    std::filesystem::remove(ToStdPath(scene.Path(u"y")));
    EXPECT_EQ(scene.Redo(2).done, 2u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"b", "b"}, {"x", "a"}, {"z", "c"}}));
}

TEST(Redo, OverwritesNothing)
{
    BatchScene scene;
    ArrangeThree(scene);
    scene.Apply();
    scene.Undo();
    scene.Write(u"x", "mine");
    const BatchSummary redone = scene.Redo(2);
    EXPECT_EQ(redone.done, 2u);
    EXPECT_EQ(redone.failed, 1u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}, {"x", "mine"}, {"y", "b"}, {"z", "c"}}));
}

TEST(Redo, LeavesTheBatchUndoneWhereNothingCouldBeDone)
{
    BatchScene scene;
    ArrangeThree(scene);
    scene.Apply();
    scene.Undo();
    for (const char16_t* name : {u"x", u"y", u"z"})
        scene.MakeFolder(name);
    EXPECT_EQ(scene.Redo(2).failed, 3u);
    EXPECT_EQ(scene.batches.List().at(0).state, BatchState::Undone);
    for (const char16_t* name : {u"x", u"y", u"z"})
        std::filesystem::remove(ToStdPath(scene.Path(name)));
    EXPECT_EQ(scene.Redo(2).done, 3u);
    EXPECT_EQ(scene.Now(), after);
}

TEST(Redo, IsRecoveredWhereverItWasCutOff)
{
    for (const Recovery recovery : {Recovery::Finish, Recovery::Undo})
        for (const Moment moment : {Moment::Before, Moment::After})
            for (std::size_t change = 0;; ++change) {
                FaultyFiles files;
                BatchScene scene(files);
                ArrangeThree(scene);
                scene.Apply();
                scene.Undo();
                CutOffAt(files, change, moment);
                const bool wasCutOff = IsCutOff([&scene] { scene.Redo(2); });
                LetWork(files);
                if (!wasCutOff)
                    break;
                if (scene.batches.FindCutOff()) {
                    EXPECT_EQ(scene.Recover(recovery).error, u"") << change;
                    EXPECT_EQ(scene.Now(), recovery == Recovery::Finish ? after : before) << change;
                }
                // In either case undo and redo work afterwards.
                if (scene.batches.List().at(0).state == BatchState::Applied) {
                    EXPECT_EQ(scene.Undo().error, u"") << change;
                }
                EXPECT_EQ(scene.Now(), before) << change;
                EXPECT_EQ(scene.Redo(scene.batches.List().at(0).undo).done, 3u) << change;
                EXPECT_EQ(scene.Now(), after) << change;
            }
}

TEST(UndoPreview, TellsWhatWouldBeDoneAndChangesNothing)
{
    FaultyFiles files;
    BatchScene scene(files);
    ArrangeThree(scene);
    scene.Apply();
    scene.Write(u"a", "in the way");
    std::filesystem::remove(ToStdPath(scene.Path(u"z")));
    const FolderSnapshot now = scene.Now();
    const std::size_t changes = files.Changes();
    std::vector<BatchEntry> entries;
    const BatchSummary summary = scene.batches.PreviewReverse(
        1, Direction::Backward, [&entries](const BatchEntry& entry) { entries.push_back(entry); });
    EXPECT_EQ(summary.error, u"");
    EXPECT_EQ(summary.number, 1u);
    EXPECT_EQ(summary.done, 1u);
    EXPECT_EQ(summary.failed, 2u);
    ASSERT_EQ(entries.size(), 3u);
    EXPECT_EQ(entries[0].result.reason, u"something else is at the old path");
    EXPECT_EQ(entries[1].result.status, Status::Done);
    EXPECT_EQ(files.Changes(), changes);
    EXPECT_EQ(scene.Now(), now);
    EXPECT_THAT(scene.JournalFiles(), ElementsAre("000001.applied"));
}

TEST(UndoPreview, KnowsThatEntriesOfTheBatchMakeRoomForEachOther)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.Write(u"b");
    scene.Rename(u"a", u"b").Rename(u"b", u"a");
    scene.Apply();
    EXPECT_EQ(scene.batches.PreviewReverse(1, Direction::Backward, [](const BatchEntry&) {}).done, 2u);
    scene.Undo();
    EXPECT_EQ(scene.batches.PreviewReverse(2, Direction::Forward, [](const BatchEntry&) {}).done, 2u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}, {"b", "b"}}));
}

} // namespace
