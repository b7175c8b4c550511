// Recovery of batches that are cut off at any moment.
#include <tests/VyrHost/batch/CutOffScene.h>
#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <VyrPlatform/files/FileIdentity.h>

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

namespace {

using namespace VyrHost::Batch;
using namespace VyrTests;
namespace fs = std::filesystem;

/// Files and renames of every sort.
void ArrangeMuch(BatchScene& scene)
{
    for (const char16_t* name : {u"1", u"2", u"a", u"b", u"x", u"y", u"z", u"case", u"d/f", u"d/s/g", u"into", u"n"})
        scene.Write(name);
    scene.Rename(u"1", u"2").Rename(u"2", u"3");
    scene.Rename(u"a", u"b").Rename(u"b", u"a");
    scene.Rename(u"x", u"y").Rename(u"y", u"z").Rename(u"z", u"x");
    scene.Rename(u"case", u"CASE");
    scene.RenameFolder(u"d", u"e").Rename(u"d/f", u"d/f2").RenameFolder(u"d/s", u"t").Rename(u"d/s/g", u"d/g");
    scene.NewFolder(u"n").NewFolder(u"n/m").Rename(u"into", u"n/m/into").Rename(u"n", u"n/n");
    scene.Write(u"same 1", "links");
    fs::create_hard_link(ToStdPath(scene.Path(u"same 1")), ToStdPath(scene.Path(u"same 2")));
    scene.Rename(u"same 1", u"same 2").Rename(u"same 2", u"same 3");
}

void ArrangeLittle(BatchScene& scene)
{
    for (const char16_t* name : {u"a", u"b", u"d/f"})
        scene.Write(name);
    scene.NewFolder(u"n").Rename(u"a", u"b").Rename(u"b", u"a").RenameFolder(u"d", u"n/e").Rename(u"d/f", u"d/g");
}

void ArrangeLinks(BatchScene& scene)
{
    scene.Write(u"1", "links");
    for (const char16_t* name : {u"2", u"3", u"a", u"b"})
        fs::create_hard_link(ToStdPath(scene.Path(u"1")), ToStdPath(scene.Path(name)));
    scene.Rename(u"1", u"2").Rename(u"2", u"3").Rename(u"3", u"4").Rename(u"a", u"b").Rename(u"b", u"a");
}

VyrHostPlatform::NameFolding FoldAll(const CString&)
{
    return VyrHostPlatform::NameFolding::CaseAndForm;
}

class CutOffAnywhere : public testing::TestWithParam<Arrange>
{
protected:
    /// The trees before and after the batch, and the number of changes between.
    struct Course
    {
        FolderSnapshot before;
        FolderSnapshot after;
        std::size_t changes = 0;
        std::size_t changesBack = 0;
    };

    static Course RunThrough()
    {
        FaultyFiles files;
        files.folding = FoldAll;
        BatchScene scene(files);
        GetParam()(scene);
        Course course;
        course.before = scene.Now();
        EXPECT_EQ(scene.Apply().done, scene.list.renames.size());
        course.after = scene.Now();
        course.changes = files.Changes();
        EXPECT_EQ(scene.Undo().done, scene.list.renames.size());
        EXPECT_EQ(scene.Now(), course.before);
        course.changesBack = files.Changes() - course.changes;
        return course;
    }
};

TEST_P(CutOffAnywhere, ABatchIsUndoneOrFinished)
{
    const Course course = RunThrough();
    ASSERT_GT(course.changes, 5u);
    for (std::size_t change = 0; change < course.changes; ++change) {
        for (const Moment moment : {Moment::Before, Moment::After}) {
            for (const Recovery recovery : {Recovery::Undo, Recovery::Finish}) {
                SCOPED_TRACE(testing::Message() << "change " << change << (moment == Moment::After ? " done" : "")
                                                << (recovery == Recovery::Finish ? ", finish" : ", undo"));
                FaultyFiles files;
                files.folding = FoldAll;
                BatchScene scene(files);
                GetParam()(scene);
                CutOffAt(files, change, moment);
                ASSERT_TRUE(IsCutOff([&scene] { scene.Apply(); }));
                LetWork(files);
                EXPECT_EQ(ContentsOf(scene.Now()), ContentsOf(course.before));
                const std::optional<BatchInformation> found = scene.batches.FindCutOff();
                if (!found) {
                    // Not begun, or ended already.
                    EXPECT_TRUE(scene.Now() == course.before || scene.Now() == course.after);
                    continue;
                }
                EXPECT_EQ(found->state, BatchState::CutOff);
                EXPECT_EQ(found->number, 1u);
                EXPECT_GE(scene.Apply().error.Find(u"vyr recover"), 0);
                EXPECT_GE(scene.Undo().error.Find(u"vyr recover"), 0);
                const FolderSnapshot cutOff = scene.Now();
                const BatchSummary preview = scene.batches.PreviewRecover(recovery, [](const BatchEntry&) {});
                EXPECT_EQ(scene.Now(), cutOff);
                const BatchSummary summary = scene.Recover(recovery);
                EXPECT_EQ(preview.done, summary.done);
                EXPECT_EQ(preview.number, summary.number);
                EXPECT_EQ(summary.error, u"");
                EXPECT_EQ(summary.done, scene.list.renames.size());
                EXPECT_EQ(scene.Now(), recovery == Recovery::Finish ? course.after : course.before);
                EXPECT_EQ(scene.batches.FindCutOff(), std::nullopt);
                if (recovery == Recovery::Finish) {
                    EXPECT_EQ(scene.Undo().done, scene.list.renames.size());
                    EXPECT_EQ(scene.Now(), course.before);
                }
            }
        }
    }
}

TEST_P(CutOffAnywhere, AnUndoIsFinishedOrUndone)
{
    const Course course = RunThrough();
    ASSERT_GT(course.changesBack, 5u);
    for (std::size_t change = 0; change < course.changesBack; ++change) {
        for (const Recovery recovery : {Recovery::Undo, Recovery::Finish}) {
            SCOPED_TRACE(testing::Message()
                         << "change " << change << (recovery == Recovery::Finish ? ", finish" : ", undo"));
            FaultyFiles files;
            files.folding = FoldAll;
            BatchScene scene(files);
            GetParam()(scene);
            scene.Apply();
            CutOffAt(files, change, Moment::After);
            ASSERT_TRUE(IsCutOff([&scene] { scene.Undo(); }));
            LetWork(files);
            EXPECT_EQ(ContentsOf(scene.Now()), ContentsOf(course.before));
            const std::optional<BatchInformation> found = scene.batches.FindCutOff();
            if (!found) {
                EXPECT_EQ(scene.Now(), course.before);
                continue;
            }
            EXPECT_EQ(found->state, BatchState::CutOffUndoing);
            EXPECT_EQ(scene.Recover(recovery).error, u"");
            EXPECT_EQ(scene.Now(), recovery == Recovery::Finish ? course.before : course.after);
            EXPECT_EQ(scene.batches.FindCutOff(), std::nullopt);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Batches, CutOffAnywhere, testing::Values(ArrangeMuch, ArrangeLinks),
                         [](const auto& arranged) { return arranged.index ? "Links" : "Much"; });

TEST(Recover, IsItselfRecoveredWhereverItIsCutOff)
{
    constexpr std::size_t batchChanges = 12;
    std::size_t cutOffTwice = 0;
    for (std::size_t change = 0; change < batchChanges; ++change) {
        for (std::size_t recoverChange = 0; recoverChange < batchChanges; ++recoverChange) {
            for (const Recovery first : {Recovery::Undo, Recovery::Finish}) {
                FaultyFiles files;
                BatchScene scene(files);
                ArrangeLittle(scene);
                const FolderSnapshot before = scene.Now();
                CutOffAt(files, change, Moment::After);
                IsCutOff([&scene] { scene.Apply(); });
                CutOffAt(files, recoverChange, Moment::After);
                cutOffTwice += IsCutOff([&scene, first] { scene.Recover(first); });
                LetWork(files);
                if (scene.batches.FindCutOff()) {
                    EXPECT_EQ(scene.Recover(Recovery::Undo).error, u"");
                    EXPECT_EQ(scene.Now(), before);
                }
                EXPECT_EQ(ContentsOf(scene.Now()), ContentsOf(before));
            }
        }
    }
    EXPECT_GT(cutOffTwice, 50u);
}

TEST(Recover, ReportsThatThereIsNothingToDo)
{
    BatchScene scene;
    EXPECT_EQ(scene.batches.FindCutOff(), std::nullopt);
    EXPECT_EQ(scene.Recover(Recovery::Finish).error, u"no batch was cut off");
}

TEST(Recover, KeepsAHardLinkThatItsFileHadBefore)
{
    CutOffScene cut(
        [](BatchScene& arranged) {
            ArrangeThree(arranged);
            fs::create_hard_link(ToStdPath(arranged.Path(u"b")), ToStdPath(arranged.Path(u"another name of b")));
        },
        1);
    EXPECT_EQ(cut.scene.Recover(Recovery::Finish).error, u"");
    EXPECT_EQ(cut.scene.Now(), (FolderSnapshot{{"another name of b", "b"}, {"x", "a"}, {"y", "b"}, {"z", "c"}}));
}

TEST(Recover, FindsFilesThatWereReplacedMeanwhile)
{
    CutOffScene cut(ArrangeThree, 1);
    // Like a program that saves by writing a new file.
    cut.scene.Write(u"new", "saved");
    fs::rename(ToStdPath(cut.scene.Path(u"new")), ToStdPath(cut.scene.Path(u"x")));
    EXPECT_EQ(cut.scene.Recover(Recovery::Undo).done, 3u);
    EXPECT_EQ(cut.scene.Now(), (FolderSnapshot{{"a", "saved"}, {"b", "b"}, {"c", "c"}}));
    for (const BatchEntry& entry : cut.scene.entries)
        EXPECT_EQ(entry.hasChanged, entry.before == cut.scene.Path(u"a"));
}

TEST(Recover, DoesNotTouchFilesThatItCannotIdentify)
{
    CutOffScene cut(ArrangeThree, 1);
    // While the file exists no other file has its number.
    const ScratchFolder elsewhere;
    fs::rename(ToStdPath(cut.scene.Path(u"b")), ToStdPath(elsewhere.Path(u"b")));
    cut.scene.Write(u"b", "of someone else");
    cut.scene.Write(u"y", "of someone else, too");
    const BatchSummary summary = cut.scene.Recover(Recovery::Finish);
    EXPECT_EQ(summary.error, u"");
    EXPECT_EQ(summary.done, 2u);
    EXPECT_EQ(summary.failed, 1u);
    EXPECT_EQ(cut.scene.Now(),
              (FolderSnapshot{{"b", "of someone else"}, {"x", "a"}, {"y", "of someone else, too"}, {"z", "c"}}));
}

TEST(Recover, ChangesNothingWhenTheFilesAreNotThere)
{
    CutOffScene cut(
        [](BatchScene& scene) {
            scene.Write(u"disk/a");
            scene.Rename(u"disk/a", u"disk/b");
        },
        1);
    fs::rename(ToStdPath(cut.scene.Path(u"disk")), ToStdPath(cut.scene.Path(u"elsewhere")));
    EXPECT_NE(cut.scene.Recover(Recovery::Undo).error, u"");
    EXPECT_TRUE(cut.scene.batches.FindCutOff());
    fs::rename(ToStdPath(cut.scene.Path(u"elsewhere")), ToStdPath(cut.scene.Path(u"disk")));
    EXPECT_EQ(cut.scene.Recover(Recovery::Undo).done, 1u);
}

TEST(Recover, ChangesNothingWhenTheJournalIsDamaged)
{
    CutOffScene cut(ArrangeThree, 1);
    const fs::path journal = ToStdPath(cut.scene.JournalFolder()) / "000001.applying";
    std::fstream stream(journal, std::ios::in | std::ios::out | std::ios::binary);
    stream.seekp(100);
    stream.put('\x01');
    stream.close();
    const FolderSnapshot now = cut.scene.Now();
    const CString error = cut.scene.Recover(Recovery::Undo).error;
    EXPECT_GE(error.Find(u"damaged"), 0);
    EXPECT_GE(error.Find(FromStdPath(journal)), 0);
    EXPECT_EQ(cut.scene.Now(), now);
    EXPECT_GE(error.Find(u"vyr recover --abandon"), 0);
}

TEST(Recover, AbandonsABatchAndKeepsItsJournalWhole)
{
    CutOffScene cut(ArrangeThree, 1);
    BatchScene& scene = cut.scene;
    const FolderSnapshot now = scene.Now();
    const AbandonedJournal abandoned = scene.batches.AbandonCutOff();
    EXPECT_EQ(abandoned.error, u"");
    EXPECT_EQ(abandoned.number, 1u);
    EXPECT_EQ(scene.Now(), now);
    EXPECT_EQ(scene.batches.FindCutOff(), std::nullopt);
    EXPECT_EQ(scene.batches.AbandonCutOff().error, u"no batch was cut off");
    EXPECT_THAT(scene.JournalFiles(), testing::ElementsAre("000001.abandoned"));
    // Other batches can begin, under new numbers.
    scene.list = {};
    scene.Write(u"other");
    scene.Rename(u"other", u"another");
    EXPECT_EQ(scene.Apply().number, 2u);
    EXPECT_EQ(scene.Undo().done, 1u);
    // Under its old name it can still be recovered.
    fs::rename(ToStdPath(abandoned.to), ToStdPath(abandoned.from));
    EXPECT_EQ(scene.Recover(Recovery::Undo).done, 3u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}, {"b", "b"}, {"c", "c"}, {"other", "other"}}));
}

TEST(Recover, ReportsWhyAJournalCannotBeAbandoned)
{
    CutOffScene cut(ArrangeThree, 1);
    cut.files.before = [](const FileChange& change, std::size_t) {
        return std::uint32_t{change.kind == FileChange::Kind::RenameFile ? 5u : 0u};
    };
    EXPECT_GE(cut.scene.batches.AbandonCutOff().error.Find(u"cannot be abandoned"), 0);
    EXPECT_TRUE(cut.scene.batches.FindCutOff());
}

} // namespace
