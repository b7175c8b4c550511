// Batches on a real disk: what they rename and refuse, and that all can be undone.
#include <tests/VyrHost/batch/BatchScene.h>
#include <tests/VyrHost/batch/FaultyFiles.h>
#include <tests/support/Describe.h>
#include <tests/support/FileMoments.h>
#include <tests/support/Links.h>
#include <tests/support/StdPath.h>

#include <VyrHostPlatform/DurableFile.h>
#include <VyrHostPlatform/RenameFile.h>
#include <VyrPlatform/files/FileIdentity.h>

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

namespace {

using namespace VyrHost::Batch;
using namespace VyrHost::Model;
using namespace VyrTests;
using testing::ElementsAre;
using testing::IsEmpty;

CString Name(int number)
{
    CString name;
    name.Format(u"file %04d", number);
    return name;
}

/// Applies the scene's list, expects `after`, undoes it, and expects the tree before.
void ExpectThereAndBack(BatchScene& scene, const FolderSnapshot& after)
{
    const FolderSnapshot before = scene.Now();
    const BatchSummary applied = scene.Apply();
    EXPECT_EQ(applied.error, u"");
    EXPECT_EQ(applied.done, scene.list.renames.size());
    EXPECT_EQ(scene.Now(), after);
    const BatchSummary undone = scene.Undo();
    EXPECT_EQ(undone.error, u"");
    EXPECT_EQ(undone.number, applied.number);
    EXPECT_EQ(undone.done, applied.done);
    EXPECT_THAT(undone.keptFolders, IsEmpty());
    EXPECT_EQ(scene.Now(), before);
    for (const BatchEntry& entry : scene.entries)
        EXPECT_FALSE(entry.hasChanged);
}

TEST(Batches, RenameAndUndoSingleFiles)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.Write(u"b");
    scene.Write(u"left alone");
    scene.Rename(u"a", u"x").Rename(u"b", u"y");
    ExpectThereAndBack(scene, {{"left alone", "left alone"}, {"x", "a"}, {"y", "b"}});
}

TEST(Batches, ShiftAChainOfNames)
{
    BatchScene scene;
    for (const char16_t* name : {u"1", u"2", u"3"})
        scene.Write(name);
    scene.Rename(u"1", u"2").Rename(u"2", u"3").Rename(u"3", u"4");
    ExpectThereAndBack(scene, {{"2", "1"}, {"3", "2"}, {"4", "3"}});
}

TEST(Batches, SwapTwoNames)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.Write(u"b");
    scene.Rename(u"a", u"b").Rename(u"b", u"a");
    ExpectThereAndBack(scene, {{"a", "b"}, {"b", "a"}});
}

TEST(Batches, RenameACycleOfThree)
{
    BatchScene scene;
    for (const char16_t* name : {u"a", u"b", u"c"})
        scene.Write(name);
    scene.Rename(u"a", u"b").Rename(u"b", u"c").Rename(u"c", u"a");
    ExpectThereAndBack(scene, {{"a", "c"}, {"b", "a"}, {"c", "b"}});
}

TEST(Batches, RenameACycleOfAThousand)
{
    constexpr int count = 1000;
    BatchScene scene;
    FolderSnapshot after;
    for (int index = 0; index < count; ++index) {
        const CString name = Name(index);
        const CString next = Name((index + 1) % count);
        scene.Write(name);
        scene.Rename(name, next);
        after[std::filesystem::path(ToStdPath(next)).string()] = ToStdPath(name).string();
    }
    ExpectThereAndBack(scene, after);
}

TEST(Batches, ChangeCaseAlone)
{
    BatchScene scene;
    scene.Write(u"readme.txt");
    scene.MakeFolder(u"Folder");
    scene.Write(u"Folder/X");
    scene.Rename(u"readme.txt", u"README.TXT").RenameFolder(u"Folder", u"folder").Rename(u"Folder/X", u"Folder/x");
    ExpectThereAndBack(scene, {{"README.TXT", "readme.txt"}, {"folder", "<folder>"}, {"folder/x", "Folder/X"}});
}

TEST(Batches, GoThroughATemporaryNameWhereTheOldAndTheNewNameAreOne)
{
    FaultyFiles files;
    files.folding = [](const CString&) {
        return VyrHostPlatform::NameFolding::CaseAndForm;
    };
    std::vector<CString> newNames;
    files.after = [&](const FileChange& change, std::size_t) {
        if (change.kind == FileChange::Kind::Rename)
            newNames.push_back(change.newName);
    };
    BatchScene scene(files);
    scene.Write(u"a");
    scene.Write(u"\u00E9");
    scene.Rename(u"a", u"A").Rename(u"\u00E9", u"e\u0301");
    ExpectThereAndBack(scene, {{"A", "a"}, {"e\u0301", "\u00E9"}});
    EXPECT_EQ(newNames.size(), 8u);
}

TEST(Batches, RenameFoldersAndTheirContentsTogether)
{
    BatchScene scene;
    scene.Write(u"d/x");
    scene.Write(u"d/s/y");
    scene.Write(u"other/z");
    scene.Rename(u"d/s/y", u"d/s/y2")
        .RenameFolder(u"d", u"e")
        .Rename(u"d/x", u"d/s/x")
        .RenameFolder(u"d/s", u"other/t")
        .Rename(u"other/z", u"d");
    ExpectThereAndBack(scene, {{"d", "other/z"},
                               {"e", "<folder>"},
                               {"other", "<folder>"},
                               {"other/t", "<folder>"},
                               {"other/t/x", "d/x"},
                               {"other/t/y2", "d/s/y"}});
}

TEST(Batches, MoveIntoFoldersThatTheyCreate)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.Write(u"b");
    scene.Write(u"2024");
    scene.NewFolder(u"2024").NewFolder(u"2024/05").NewFolder(u"unused");
    scene.Rename(u"a", u"2024/a").Rename(u"b", u"2024/05/b").Rename(u"2024", u"2024/05/2024");
    ExpectThereAndBack(
        scene,
        {{"2024", "<folder>"}, {"2024/05", "<folder>"}, {"2024/05/2024", "2024"}, {"2024/05/b", "b"}, {"2024/a", "a"}});
}

TEST(Batches, RenameLinksThemselves)
{
    BatchScene scene;
    scene.Write(u"target");
    const std::string whyNot = MakeLink(scene.Path(u"target"), scene.Path(u"link"));
    if (!whyNot.empty())
        GTEST_SKIP() << whyNot;
    scene.Rename(u"link", u"renamed");
    ExpectThereAndBack(scene, {{"renamed", "<link>"}, {"target", "target"}});
}

TEST(Batches, RenameHardLinksToOneFile)
{
    BatchScene scene;
    scene.Write(u"a", "one file");
    std::filesystem::create_hard_link(ToStdPath(scene.Path(u"a")), ToStdPath(scene.Path(u"b")));
    scene.Rename(u"a", u"b").Rename(u"b", u"c");
    ExpectThereAndBack(scene, {{"b", "one file"}, {"c", "one file"}});
    EXPECT_EQ(VyrPlatform::LookAtFile(scene.Path(u"a")).identity, VyrPlatform::LookAtFile(scene.Path(u"b")).identity);
}

TEST(Batches, DoNotRenameALinkOntoAnotherOfTheSameFile)
{
    BatchScene scene;
    scene.Write(u"a", "one file");
    std::filesystem::create_hard_link(ToStdPath(scene.Path(u"a")), ToStdPath(scene.Path(u"b")));
    scene.Rename(u"a", u"b");
    EXPECT_EQ(scene.Apply().failed, 1u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "one file"}, {"b", "one file"}}));
}

TEST(Batches, RenameTheLongestNames)
{
    const CString a(u'a', 255);
    const CString b(u'b', 255);
    const CString c(u'c', 255);
    BatchScene scene;
    scene.Write(a, "a");
    scene.Write(b, "b");
    scene.Rename(a, b).Rename(b, a);
    ExpectThereAndBack(scene, {{std::string(255, 'a'), "b"}, {std::string(255, 'b'), "a"}});
    scene.list = {};
    scene.Rename(a, c);
    ExpectThereAndBack(scene, {{std::string(255, 'b'), "b"}, {std::string(255, 'c'), "a"}});
}

TEST(Batches, NeverReplaceWhatAppearedSinceThePreview)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.Write(u"b");
    scene.Write(u"c");
    scene.MakeFolder(u"folder");
    scene.Rename(u"a", u"x").Rename(u"b", u"y").RenameFolder(u"folder", u"z");
    scene.Write(u"x", "came later");
    scene.MakeFolder(u"z");
    const FolderSnapshot before = scene.Now();
    const BatchSummary summary = scene.Apply();
    EXPECT_EQ(summary.done, 1u);
    EXPECT_EQ(summary.failed, 2u);
    EXPECT_EQ(scene.results[0].status, Status::Failed);
    EXPECT_TRUE(VyrHostPlatform::IsTargetTaken(scene.results[0].error));
    EXPECT_EQ(scene.results[0].reason, u"something else is at the new path");
    EXPECT_EQ(scene.results[1].status, Status::Done);
    EXPECT_EQ(scene.results[2].status, Status::Failed);
    EXPECT_EQ(scene.Now(),
              (FolderSnapshot{
                  {"a", "a"}, {"c", "c"}, {"folder", "<folder>"}, {"x", "came later"}, {"y", "b"}, {"z", "<folder>"}}));
    EXPECT_EQ(scene.Undo().done, 1u);
    EXPECT_EQ(scene.Now(), before);
}

TEST(Batches, NeverMoveTheFolderOfTheirJournal)
{
    BatchScene scene;
    scene.Write(u"a");
    const CString journal = scene.JournalFolder();
    scene.list.Add(journal, journal + u" renamed", VyrPlatform::FileSystem::Kind::Folder);
    scene.Rename(u"a", u"b");
    const BatchSummary summary = scene.Apply();
    EXPECT_EQ(summary.refused, 1u);
    EXPECT_EQ(scene.results[0].status, Status::Refused);
    EXPECT_EQ(scene.results[0].reason, u"the journal that \"vyr undo\" needs is kept in it");
    const auto reasonToStay = scene.batches.ReasonsToStay();
    EXPECT_EQ(reasonToStay(journal + u"/../", u"journal", VyrPlatform::FileSystem::Kind::Folder),
              scene.results[0].reason);
    EXPECT_EQ(reasonToStay(scene.Path(u"./"), u"b", VyrPlatform::FileSystem::Kind::File), u"");
    EXPECT_EQ(summary.done, 1u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"b", "a"}}));
    EXPECT_EQ(scene.Undo().done, 1u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}}));
}

TEST(Batches, NeverMoveJournalsAndTheLock)
{
    BatchScene scene;
    scene.MakeFolder(u"journal");
    scene.batches = Batches(SystemFiles(), SettingsIn(scene.Path(u"journal")));
    scene.Write(u"a");
    scene.Rename(u"a", u"b");
    ASSERT_EQ(scene.Apply().done, 1u);
    scene.Write(u"lock");
    scene.Write(u"000001.applied");
    scene.list = {};
    scene.Rename(u"journal/lock", u"journal/unlocked").Rename(u"journal/000001.applied", u"journal/1");
    scene.Rename(u"lock", u"unlocked").Rename(u"000001.applied", u"1");
    const BatchSummary summary = scene.Apply();
    EXPECT_EQ(summary.refused, 2u);
    EXPECT_EQ(scene.results[0].reason, u"it is part of the journal that \"vyr undo\" needs");
    EXPECT_EQ(scene.results[1].reason, scene.results[0].reason);
    const auto reasonToStay = scene.batches.ReasonsToStay();
    for (const char16_t* const name : {u"lock", u"000001.applied"}) {
        EXPECT_EQ(reasonToStay(scene.Path(u"journal/"), name, VyrPlatform::FileSystem::Kind::File),
                  scene.results[0].reason);
        EXPECT_EQ(reasonToStay(scene.Path(u"./"), name, VyrPlatform::FileSystem::Kind::File), u"");
    }
    // Files with such names in other folders can be renamed.
    EXPECT_EQ(summary.done, 2u);
    EXPECT_EQ(scene.Now().at("unlocked"), "lock");
    EXPECT_EQ(scene.Undo().done, 2u);
    EXPECT_EQ(scene.Undo().done, 1u);
    EXPECT_EQ(scene.Now().at("a"), "a");
}

TEST(Batches, NeverMoveTheFoldersAboveTheirJournal)
{
    BatchScene scene;
    scene.MakeFolder(u"state/deep/journal");
    scene.Write(u"state/deep/a");
    scene.MakeFolder(u"other");
    scene.batches = Batches(SystemFiles(), SettingsIn(scene.Path(u"state/deep/journal")));
    scene.RenameFolder(u"state", u"other state").Rename(u"state/deep/a", u"state/deep/b").RenameFolder(u"other", u"x");
    const BatchSummary summary = scene.Apply();
    EXPECT_EQ(scene.results[0].status, Status::Refused);
    EXPECT_EQ(summary.done, 2u);
    EXPECT_EQ(scene.Now().at("state/deep/b"), "state/deep/a");
    EXPECT_EQ(scene.Undo().done, 2u);
    EXPECT_EQ(scene.Now().at("state/deep/a"), "state/deep/a");
    EXPECT_TRUE(scene.Now().contains("other"));
}

TEST(Batches, TellTheOldPathOfEntriesInAFolderThatKeptItsName)
{
    BatchScene scene;
    scene.Write(u"folder/a");
    scene.RenameFolder(u"folder", u"taken").Rename(u"folder/a", u"folder/b");
    scene.MakeFolder(u"taken");
    EXPECT_EQ(scene.Apply().done, 1u);
    EXPECT_EQ(scene.Undo().done, 1u);
    ASSERT_EQ(scene.entries.size(), 1u);
    EXPECT_EQ(scene.entries[0].before, scene.Path(u"folder/a"));
    EXPECT_EQ(scene.entries[0].after, scene.Path(u"folder/b"));
}

TEST(Batches, RefuseWhatDependsOnARenameThatFailed)
{
    BatchScene scene;
    for (const char16_t* name : {u"1", u"2", u"3"})
        scene.Write(name);
    scene.Rename(u"1", u"2").Rename(u"2", u"3").Rename(u"3", u"4");
    scene.Write(u"4", "in the way");
    const FolderSnapshot before = scene.Now();
    EXPECT_EQ(scene.Apply().number, 0u);
    EXPECT_EQ(scene.results[2].status, Status::Failed);
    EXPECT_EQ(scene.results[1].status, Status::Refused);
    EXPECT_EQ(scene.results[0].status, Status::Refused);
    EXPECT_GE(scene.results[0].reason.Find(scene.Path(u"2")), 0);
    EXPECT_EQ(scene.Now(), before);
    EXPECT_THAT(scene.JournalFiles(), IsEmpty());
}

TEST(Batches, RollACycleBackWhicheverOfItsRenamesFails)
{
    // Three renames, and one more to the temporary name.
    for (std::size_t failing = 0; failing < 4; ++failing) {
        FaultyFiles files;
        BatchScene scene(files);
        for (const char16_t* name : {u"a", u"b", u"c", u"d"})
            scene.Write(name);
        scene.Rename(u"a", u"b").Rename(u"b", u"c").Rename(u"c", u"a").Rename(u"d", u"e");
        std::size_t renames = 0;
        files.before = [&renames, failing](const FileChange& change, std::size_t) {
            const bool fails = change.kind == FileChange::Kind::Rename && renames++ == failing;
            return std::uint32_t{fails ? 5u : 0u};
        };
        const BatchSummary summary = scene.Apply();
        EXPECT_EQ(summary.error, u"");
        EXPECT_EQ(summary.done, 1u);
        EXPECT_EQ(summary.failed, 1u);
        EXPECT_EQ(summary.refused, 2u);
        EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}, {"b", "b"}, {"c", "c"}, {"e", "d"}}));
    }
}

TEST(Batches, CanBeRecoveredWhenACycleCanNeitherBeFinishedNorUndone)
{
    FaultyFiles files;
    BatchScene scene(files);
    scene.Write(u"a");
    scene.Write(u"b");
    scene.Rename(u"a", u"b").Rename(u"b", u"a");
    const FolderSnapshot before = scene.Now();
    std::size_t renames = 0;
    files.before = [&renames](const FileChange& change, std::size_t) {
        return std::uint32_t{change.kind == FileChange::Kind::Rename && renames++ > 0 ? 5u : 0u};
    };
    const BatchSummary summary = scene.Apply();
    EXPECT_GE(summary.error.Find(u"temporary names"), 0);
    EXPECT_EQ(summary.failed, 2u);
    EXPECT_EQ(ContentsOf(scene.Now()), ContentsOf(before));
    files.before = {};
    EXPECT_EQ(scene.Recover(Recovery::Undo).error, u"");
    EXPECT_EQ(scene.Now(), before);
}

TEST(Batches, SkipASourceThatIsGone)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.Write(u"c");
    scene.Rename(u"a", u"x").Rename(u"b", u"y").Rename(u"c", u"z");
    const BatchSummary summary = scene.Apply();
    EXPECT_EQ(summary.done, 2u);
    EXPECT_EQ(scene.results[1].status, Status::Failed);
    EXPECT_NE(scene.results[1].error, 0u);
    EXPECT_FALSE(scene.results[1].reason.IsEmpty());
    EXPECT_EQ(scene.Undo().done, 2u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}, {"c", "c"}}));
}

TEST(Batches, RefuseAFolderThatWasReplacedByAFile)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.RenameFolder(u"a", u"x");
    EXPECT_EQ(scene.Apply().refused, 1u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}}));
}

TEST(Batches, RefuseEntriesWhoseFolderCannotBeCreated)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.Write(u"b");
    scene.Write(u"c");
    scene.NewFolder(u"n").NewFolder(u"n/m").NewFolder(u"good");
    scene.Rename(u"a", u"n/m/a").Rename(u"b", u"n/b").Rename(u"c", u"good/c");
    scene.Write(u"n", "a file in the way");
    EXPECT_EQ(scene.Apply().refused, 2u);
    EXPECT_GE(scene.results[0].reason.Find(u"folder"), 0);
    EXPECT_EQ(
        scene.Now(),
        (FolderSnapshot{{"a", "a"}, {"b", "b"}, {"good", "<folder>"}, {"good/c", "c"}, {"n", "a file in the way"}}));
}

TEST(Batches, RemoveTheFoldersThatTheyCreatedInVain)
{
    BatchScene scene;
    scene.NewFolder(u"n").NewFolder(u"n/m");
    scene.Rename(u"gone", u"n/m/a");
    EXPECT_EQ(scene.Apply().failed, 1u);
    EXPECT_THAT(scene.Now(), IsEmpty());
    EXPECT_THAT(scene.JournalFiles(), IsEmpty());
}

TEST(Batches, UseAndKeepAFolderThatAnotherProgramCreated)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.NewFolder(u"n").Rename(u"a", u"n/a");
    scene.MakeFolder(u"n");
    EXPECT_EQ(scene.Apply().done, 1u);
    EXPECT_EQ(scene.Undo().done, 1u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}, {"n", "<folder>"}}));
}

TEST(Batches, KeepACreatedFolderThatAnotherProgramUses)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.NewFolder(u"n").Rename(u"a", u"n/a");
    scene.Apply();
    scene.Write(u"n/mine");
    const BatchSummary summary = scene.Undo();
    EXPECT_THAT(summary.keptFolders, ElementsAre(scene.Path(u"n")));
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}, {"n", "<folder>"}, {"n/mine", "n/mine"}}));
}

TEST(Batches, RemoveAFolderThatCouldNotBeRemovedAtTheNextUndo)
{
    FaultyFiles files;
    BatchScene scene(files);
    scene.Write(u"a");
    scene.NewFolder(u"n").NewFolder(u"n/m").Rename(u"a", u"n/m/a");
    scene.Apply();
    files.before = [](const FileChange& change, std::size_t) {
        return std::uint32_t{change.kind == FileChange::Kind::RemoveFolder ? 5u : 0u};
    };
    const BatchSummary first = scene.Undo();
    EXPECT_EQ(first.done, 1u);
    EXPECT_THAT(first.keptFolders, ElementsAre(scene.Path(u"n"), scene.Path(u"n/m")));
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}, {"n", "<folder>"}, {"n/m", "<folder>"}}));
    files.before = {};
    const BatchSummary second = scene.Undo(1);
    EXPECT_EQ(second.error, u"");
    EXPECT_TRUE(second.keptFolders.empty());
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}}));
    EXPECT_EQ(scene.Undo(1).error, u"the batch is undone already; \"vyr undo 2\" redoes it");
}

TEST(Batches, ReportANewNameThatItsFolderDoesNotList)
{
    FaultyFiles files;
    files.folding = [](const CString&) {
        return VyrHostPlatform::NameFolding::Case;
    };
    BatchScene scene(files);
    scene.Write(u"a");
    scene.Write(u"b");
    scene.Rename(u"a", u"x").Rename(u"b", u"y");
    // Acts like a file system that stores another name than the given one.
    files.after = [&scene](const FileChange& change, std::size_t) {
        if (change.newName == u"x")
            std::filesystem::rename(ToStdPath(scene.Path(u"x")), ToStdPath(scene.Path(u"kept otherwise")));
    };
    const BatchSummary summary = scene.batches.Apply(scene.Plan().plan, {}, [](PlanIndex, const Outcome&) {}, {});
    EXPECT_EQ(summary.done, 2u);
    EXPECT_THAT(summary.missing, ElementsAre(scene.Path(u"x")));
}

TEST(Batches, StopBetweenRenamesOnRequest)
{
    BatchScene scene;
    for (const char16_t* name : {u"a", u"b", u"c", u"d"})
        scene.Write(name);
    // The cycle in the middle is finished once begun.
    scene.Rename(u"a", u"x").Rename(u"b", u"c").Rename(u"c", u"b").Rename(u"d", u"y");
    const FolderSnapshot before = scene.Now();
    int asked = 0;
    const BatchSummary summary = scene.Apply([&asked] { return ++asked > 2; });
    EXPECT_TRUE(summary.wasStopped);
    EXPECT_EQ(summary.done, 3u);
    EXPECT_EQ(summary.notReached, 1u);
    EXPECT_EQ(scene.results[3].status, Status::NotReached);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"b", "c"}, {"c", "b"}, {"d", "d"}, {"x", "a"}}));
    EXPECT_EQ(scene.batches.FindCutOff(), std::nullopt);
    EXPECT_EQ(scene.Undo().done, 3u);
    EXPECT_EQ(scene.Now(), before);
}

TEST(Batches, AreUndoneInPartOnRequestAndTheRestLater)
{
    BatchScene scene;
    for (const char16_t* name : {u"a", u"b", u"c"})
        scene.Write(name);
    scene.Rename(u"a", u"x").Rename(u"b", u"y").Rename(u"c", u"z");
    const FolderSnapshot before = scene.Now();
    scene.Apply();
    int asked = 0;
    const BatchSummary part = scene.Undo({}, [&asked] { return ++asked > 1; });
    EXPECT_TRUE(part.wasStopped);
    EXPECT_EQ(part.done, 1u);
    EXPECT_EQ(part.notReached, 2u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"c", "c"}, {"x", "a"}, {"y", "b"}}));
    EXPECT_EQ(scene.Undo().done, 2u);
    EXPECT_EQ(scene.Now(), before);
}

TEST(Batches, AreUndoneInTurnOrByNumber)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.Write(u"other");
    scene.Rename(u"a", u"b");
    EXPECT_EQ(scene.Apply().number, 1u);
    scene.list = {};
    scene.Rename(u"b", u"c");
    EXPECT_EQ(scene.Apply().number, 2u);
    scene.list = {};
    scene.Rename(u"other", u"another");
    EXPECT_EQ(scene.Apply().number, 3u);
    EXPECT_EQ(scene.Undo(2).number, 2u);
    EXPECT_EQ(scene.Undo().number, 3u);
    EXPECT_EQ(scene.Undo().number, 1u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}, {"other", "other"}}));
    EXPECT_EQ(scene.Undo(2).error, u"the batch is undone already; \"vyr undo 4\" redoes it");
    EXPECT_EQ(scene.Undo(4).error, u"the journal has no batch of this number");
    EXPECT_EQ(scene.Undo(9).error, u"the journal has no batch of this number");
}

TEST(Batches, AreListedTheLatestFirst)
{
    BatchScene scene;
    scene.Write(u"a");
    EXPECT_THAT(scene.batches.List(), IsEmpty());
    scene.Rename(u"a", u"b");
    scene.Apply();
    scene.list = {};
    scene.Rename(u"b", u"c");
    scene.Apply();
    scene.Undo();
    const std::vector<BatchInformation> batches = scene.batches.List();
    ASSERT_EQ(batches.size(), 2u);
    EXPECT_EQ(batches[0].number, 2u);
    EXPECT_EQ(batches[0].state, BatchState::Undone);
    EXPECT_EQ(batches[0].undo, 3u);
    EXPECT_EQ(batches[0].command, u"rename");
    EXPECT_EQ(batches[0].folder + CString(VyrPlatform::FileSystem::Separator(), 1), scene.Path(u""));
    EXPECT_EQ(batches[0].entries, 1u);
    EXPECT_EQ(batches[0].firstFrom, scene.Path(u"b"));
    EXPECT_EQ(batches[0].firstTo, scene.Path(u"c"));
    EXPECT_EQ(batches[0].started.GetLength(), 19);
    EXPECT_EQ(batches[1].number, 1u);
    EXPECT_EQ(batches[1].state, BatchState::Applied);
}

/// The scene's only batch, as the list gives it.
BatchInformation Listed(const BatchScene& scene)
{
    const std::vector<BatchInformation> batches = scene.batches.List();
    EXPECT_EQ(batches.size(), 1u);
    return batches.empty() ? BatchInformation() : batches.front();
}

/// Writes files of these names, and adds renames that append a "2".
void RenameEach(BatchScene& scene, const std::vector<CString>& names)
{
    for (const CString& name : names) {
        scene.Write(name);
        scene.Rename(name, name + u"2");
    }
}

StopRequest StopAfter(int renames)
{
    return [left = renames]() mutable {
        return left-- == 0;
    };
}

TEST(Batches, AreListedWithWhatWasDone)
{
    BatchScene scene;
    RenameEach(scene, {u"a", u"b", u"c"});
    scene.Apply();
    EXPECT_EQ(Listed(scene).state, BatchState::Applied);
    EXPECT_EQ(Listed(scene).entries, 3u);
    EXPECT_EQ(Listed(scene).renamed, 3u);
    EXPECT_FALSE(Listed(scene).wasStopped);
    scene.Undo();
    EXPECT_EQ(Listed(scene).state, BatchState::Undone);
    EXPECT_EQ(Listed(scene).renamed, 0u);
    EXPECT_FALSE(Listed(scene).wasStopped);
}

TEST(Batches, AreListedAsStoppedWithWhatWasDoneUntilThen)
{
    BatchScene scene;
    RenameEach(scene, {u"a", u"b", u"c"});
    scene.Apply(StopAfter(2));
    EXPECT_EQ(Listed(scene).state, BatchState::Applied);
    EXPECT_TRUE(Listed(scene).wasStopped);
    EXPECT_EQ(Listed(scene).entries, 3u);
    EXPECT_EQ(Listed(scene).renamed, 2u);
    scene.Undo({}, StopAfter(1));
    EXPECT_EQ(Listed(scene).state, BatchState::UndonePartly);
    EXPECT_TRUE(Listed(scene).wasStopped);
    EXPECT_EQ(Listed(scene).renamed, 1u);
    scene.Undo();
    EXPECT_EQ(Listed(scene).state, BatchState::Undone);
    EXPECT_FALSE(Listed(scene).wasStopped);
    EXPECT_EQ(Listed(scene).renamed, 0u);
}

TEST(Batches, AreListedWithoutTheEntriesThatFailed)
{
    BatchScene scene;
    RenameEach(scene, {u"a", u"b", u"c"});
    scene.Write(u"b2", "in the way");
    scene.Apply();
    EXPECT_EQ(Listed(scene).state, BatchState::Applied);
    EXPECT_EQ(Listed(scene).renamed, 2u);
    EXPECT_FALSE(Listed(scene).wasStopped);
    // One cannot be restored, one is not found; the undo leaves both for later.
    scene.Write(u"a", "in the way");
    std::filesystem::rename(ToStdPath(scene.Path(u"c2")), ToStdPath(scene.Path(u"elsewhere")));
    scene.Undo();
    EXPECT_EQ(Listed(scene).state, BatchState::UndonePartly);
    EXPECT_EQ(Listed(scene).renamed, 2u);
    EXPECT_FALSE(Listed(scene).wasStopped);
    // A file that was not found before is still known when the rest is undone.
    std::filesystem::remove(ToStdPath(scene.Path(u"a")));
    EXPECT_EQ(scene.Undo().done, 1u);
    EXPECT_EQ(Listed(scene).state, BatchState::Undone);
    EXPECT_EQ(Listed(scene).renamed, 1u);
}

TEST(Batches, AreListedWithoutACountWhereTheJournalLacksItsEnd)
{
    FaultyFiles files;
    BatchScene scene(files);
    RenameEach(scene, {u"a", u"b"});
    const auto failAtMarks = [](const FileChange& change, std::size_t) {
        return std::uint32_t{change.kind == FileChange::Kind::Append ? 28u : 0u};
    };
    files.before = failAtMarks;
    scene.Apply();
    EXPECT_EQ(Listed(scene).state, BatchState::Applied);
    EXPECT_EQ(Listed(scene).renamed, std::nullopt);
    files.before = {};
    scene.Undo({}, StopAfter(1));
    EXPECT_EQ(Listed(scene).renamed, 1u);
}

TEST(Batches, AreNotListedByTheCheckpointOfEarlierWork)
{
    FaultyFiles files;
    BatchScene scene(files);
    RenameEach(scene, {u"a", u"b"});
    scene.Apply();
    files.before = [](const FileChange& change, std::size_t) {
        return std::uint32_t{change.kind == FileChange::Kind::Append ? 28u : 0u};
    };
    EXPECT_EQ(scene.Undo().done, 2u);
    EXPECT_EQ(Listed(scene).state, BatchState::Undone);
    EXPECT_EQ(Listed(scene).renamed, std::nullopt);
}

TEST(Batches, AreListedAsCutOffWithoutACount)
{
    FaultyFiles files;
    BatchScene scene(files);
    RenameEach(scene, {u"a", u"b"});
    files.before = [](const FileChange& change, std::size_t) {
        const bool isClosing = change.kind == FileChange::Kind::RenameFile && change.newName.Find(u".applied") > 0;
        return std::uint32_t{isClosing ? 28u : 0u};
    };
    scene.Apply();
    EXPECT_EQ(Listed(scene).state, BatchState::CutOff);
    EXPECT_EQ(Listed(scene).entries, 2u);
    EXPECT_EQ(Listed(scene).renamed, std::nullopt);
    files.before = {};
    EXPECT_EQ(scene.Recover(Recovery::Finish).error, u"");
    EXPECT_EQ(Listed(scene).state, BatchState::Applied);
    EXPECT_EQ(Listed(scene).renamed, 2u);
}

TEST(Batches, AreListedWithoutReadingTheMiddleOfTheirJournals)
{
    BatchScene scene;
    std::vector<CString> names;
    for (int number = 0; number < 2400; ++number)
        names.push_back(Name(number));
    RenameEach(scene, names);
    // Every second one fails, so the checkpoint is longer than the part that is read first.
    for (std::size_t index = 0; index < names.size(); index += 2)
        scene.Write(names[index] + u"2", "in the way");
    EXPECT_EQ(scene.Apply().done, 1200u);
    EXPECT_EQ(Listed(scene).renamed, 1200u);
    // The part between the ends is not read.
    const std::filesystem::path journal = ToStdPath(scene.JournalFolder()) / "000001.applied";
    std::fstream file(journal, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(static_cast<std::streamoff>(std::filesystem::file_size(journal) / 2));
    file << "damaged";
    file.close();
    EXPECT_EQ(Listed(scene).renamed, 1200u);
    EXPECT_GE(scene.Undo(1).error.Find(u"damaged"), 0);
}

TEST(Batches, ReportAChangedSizeAndAChangedTime)
{
    BatchScene scene;
    const VyrPlatform::FileTicks early = TicksOfUnixTime(1'700'000'000);
    for (const char16_t* name : {u"same", u"size", u"time"}) {
        scene.Write(name);
        StampFile(scene.Path(name), early, early);
        scene.Rename(name, CString(name) + u"2");
    }
    scene.Apply();
    scene.Write(u"size2", "longer, but of the same time");
    StampFile(scene.Path(u"size2"), early, early);
    const VyrPlatform::FileTicks late = TicksOfUnixTime(1'700'000'000, 1'000'000);
    StampFile(scene.Path(u"time2"), late, late);
    EXPECT_EQ(scene.Undo().done, 3u);
    ASSERT_EQ(scene.entries.size(), 3u);
    for (const BatchEntry& entry : scene.entries)
        EXPECT_EQ(entry.hasChanged, entry.before != scene.Path(u"same"));
}

TEST(Batches, ReportFilesThatHaveChangedSince)
{
    BatchScene scene;
    for (const char16_t* name : {u"same", u"longer", u"replaced"})
        scene.Write(name);
    scene.Rename(u"same", u"1").Rename(u"longer", u"2").Rename(u"replaced", u"3");
    scene.Apply();
    scene.Write(u"2", "more content than before");
    // Many programs save so: a new file replaces the old one.
    scene.Write(u"new", "saved");
    std::filesystem::rename(ToStdPath(scene.Path(u"new")), ToStdPath(scene.Path(u"3")));
    EXPECT_EQ(scene.Undo().done, 3u);
    for (const BatchEntry& entry : scene.entries)
        EXPECT_EQ(entry.hasChanged, entry.before != scene.Path(u"same"));
    EXPECT_EQ(scene.Now(),
              (FolderSnapshot{{"longer", "more content than before"}, {"replaced", "saved"}, {"same", "same"}}));
}

TEST(Batches, ReportBothPathsWhenTheyAreUndone)
{
    BatchScene scene;
    scene.Write(u"d/x");
    scene.RenameFolder(u"d", u"e").Rename(u"d/x", u"d/y");
    scene.Apply();
    scene.Undo();
    ASSERT_EQ(scene.entries.size(), 2u);
    EXPECT_EQ(scene.entries[0].before, scene.Path(u"d/x"));
    EXPECT_EQ(scene.entries[0].after, scene.Path(u"e/y"));
    EXPECT_EQ(scene.entries[1].before, scene.Path(u"d"));
    EXPECT_EQ(scene.entries[1].after, scene.Path(u"e"));
}

TEST(Batches, OverwriteNothingWhenTheyAreUndone)
{
    BatchScene scene;
    for (const char16_t* name : {u"1", u"2", u"3"})
        scene.Write(name);
    scene.Rename(u"1", u"2").Rename(u"2", u"3").Rename(u"3", u"4");
    scene.Apply();
    scene.Write(u"1", "came later");
    const BatchSummary summary = scene.Undo();
    EXPECT_EQ(summary.done, 0u);
    EXPECT_EQ(summary.failed, 1u);
    EXPECT_EQ(summary.refused, 2u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"1", "came later"}, {"2", "1"}, {"3", "2"}, {"4", "3"}}));
    // A second attempt is possible.
    std::filesystem::remove(ToStdPath(scene.Path(u"1")));
    EXPECT_EQ(scene.Undo().done, 3u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"1", "1"}, {"2", "2"}, {"3", "3"}}));
}

TEST(Batches, NeverTouchAFileAtThePathOfAnEntryThatFailed)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.Write(u"b");
    scene.Rename(u"a", u"x").Rename(u"b", u"y");
    scene.Write(u"x", "of someone else");
    scene.Apply();
    std::filesystem::remove(ToStdPath(scene.Path(u"a")));
    EXPECT_EQ(scene.Undo().done, 1u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"b", "b"}, {"x", "of someone else"}}));
}

TEST(Batches, ReportMissingFilesWhenTheyAreUndone)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.Write(u"b");
    scene.Rename(u"a", u"x").Rename(u"b", u"y");
    scene.Apply();
    std::filesystem::remove(ToStdPath(scene.Path(u"x")));
    const BatchSummary summary = scene.Undo();
    EXPECT_EQ(summary.done, 1u);
    EXPECT_EQ(summary.failed, 1u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"b", "b"}}));
    EXPECT_EQ(scene.batches.List().at(0).state, BatchState::Undone);
}

TEST(Batches, StayInTheJournalWhenAllTheirFilesAreMissing)
{
    BatchScene scene;
    scene.Write(u"d/a");
    scene.Rename(u"d/a", u"d/b");
    scene.Apply();
    // Like a disk that is not mounted.
    std::filesystem::rename(ToStdPath(scene.Path(u"d")), ToStdPath(scene.Path(u"elsewhere")));
    EXPECT_NE(scene.Undo().error, u"");
    std::filesystem::rename(ToStdPath(scene.Path(u"elsewhere")), ToStdPath(scene.Path(u"d")));
    EXPECT_EQ(scene.Undo().done, 1u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"d", "<folder>"}, {"d/a", "d/a"}}));
}

TEST(Batches, DoNothingWhenTheJournalCannotBeWritten)
{
    using Kind = FileChange::Kind;
    for (const Kind kind : {Kind::WriteNew, Kind::RenameFile, Kind::Flush}) {
        FaultyFiles files;
        BatchScene scene(files);
        scene.Write(u"a");
        scene.Rename(u"a", u"b");
        files.before = [kind](const FileChange& change, std::size_t) {
            return std::uint32_t{change.kind == kind ? 28u : 0u};
        };
        const BatchSummary summary = scene.Apply();
        EXPECT_GE(summary.error.Find(u"the journal cannot be written"), 0);
        EXPECT_EQ(summary.notReached, 1u);
        EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}}));
        files.before = {};
        EXPECT_THAT(scene.JournalFiles(), IsEmpty());
        EXPECT_EQ(scene.Apply().done, 1u);
    }
}

TEST(Batches, CanBeClosedLaterWhenTheJournalCannotBe)
{
    FaultyFiles files;
    BatchScene scene(files);
    scene.Write(u"a");
    scene.Rename(u"a", u"b");
    files.before = [](const FileChange& change, std::size_t) {
        const bool isClosing = change.kind == FileChange::Kind::RenameFile && change.newName.Find(u".applied") > 0;
        return std::uint32_t{isClosing ? 28u : 0u};
    };
    EXPECT_GE(scene.Apply().error.Find(u"could not be closed"), 0);
    EXPECT_EQ(scene.results[0].status, Status::Done);
    files.before = {};
    EXPECT_NE(scene.Apply().error, u"");
    EXPECT_NE(scene.Undo().error, u"");
    EXPECT_EQ(scene.Recover(Recovery::Finish).error, u"");
    EXPECT_EQ(scene.Undo().done, 1u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}}));
}

TEST(Batches, AreUndoneByTheStateOfTheDiskWhenTheJournalLacksItsEnd)
{
    FaultyFiles files;
    BatchScene scene(files);
    scene.Write(u"a");
    scene.Write(u"b");
    scene.Rename(u"a", u"x").Rename(u"b", u"y");
    scene.Write(u"y", "in the way");
    files.before = [](const FileChange& change, std::size_t) {
        return std::uint32_t{change.kind == FileChange::Kind::Append ? 28u : 0u};
    };
    EXPECT_GE(scene.Apply().error.Find(u"how far"), 0);
    files.before = {};
    EXPECT_EQ(scene.Undo().error, u"");
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}, {"b", "b"}, {"y", "in the way"}}));
}

TEST(Batches, AreRefusedWhileAnotherProgramHasTheLock)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.Write(u"b");
    scene.Rename(u"a", u"x");
    scene.Apply();
    scene.list = {};
    scene.Rename(u"b", u"y");
    const VyrHostPlatform::FileLock lock(scene.JournalFolder() + CString(u"/lock"));
    ASSERT_TRUE(lock.IsHeld());
    EXPECT_EQ(scene.Apply().error, u"another vyr is still at work; try again later");
    EXPECT_EQ(scene.Undo().error, u"another vyr is still at work; try again later");
    EXPECT_EQ(scene.Recover(Recovery::Finish).error, u"another vyr is still at work; try again later");
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"b", "b"}, {"x", "a"}}));
}

TEST(Batches, ChangeNothingWhenTheJournalIsDamaged)
{
    BatchScene scene;
    scene.Write(u"a");
    scene.Rename(u"a", u"b");
    scene.Apply();
    const std::filesystem::path journal = ToStdPath(scene.JournalFolder()) / "000001.applied";
    ASSERT_TRUE(std::filesystem::exists(journal));
    std::filesystem::resize_file(journal, 60);
    EXPECT_GE(scene.Undo(1).error.Find(u"damaged"), 0);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"b", "a"}}));
    const std::vector<BatchInformation> batches = scene.batches.List();
    ASSERT_EQ(batches.size(), 1u);
    EXPECT_EQ(batches[0].state, BatchState::Damaged);
    EXPECT_NE(batches[0].problem, u"");
}

TEST(Batches, DoNothingWithAnEmptyList)
{
    BatchScene scene;
    const BatchSummary summary = scene.Apply();
    EXPECT_EQ(summary.error, u"");
    EXPECT_EQ(summary.number, 0u);
    EXPECT_THAT(scene.JournalFiles(), IsEmpty());
}

} // namespace
