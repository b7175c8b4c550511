// Batches on file systems, and with names, that only Linux has.
#include <tests/VyrHost/batch/CutOffScene.h>
#include <tests/support/Describe.h>
#include <tests/support/StdPath.h>
#include <tests/support/linux/MountedFolder.h>

#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>

namespace {

using namespace VyrHost::Batch;
using namespace VyrHost::Model;
using namespace VyrTests;
namespace fs = std::filesystem;

TEST(BatchesOnLinux, RenameNamesThatAreNotUtf8)
{
    const CString name = VyrPlatform::Encoding::FromNameBytes("caf\xE9.jpg");
    const CString newName = VyrPlatform::Encoding::FromNameBytes("\xFF\xFE \xC3\xA9");
    BatchScene scene;
    scene.Write(name, "1");
    scene.Write(newName, "2");
    scene.Rename(name, newName).Rename(newName, name);
    EXPECT_EQ(scene.Apply().done, 2u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"caf\xE9.jpg", "2"}, {"\xFF\xFE \xC3\xA9", "1"}}));
    EXPECT_EQ(scene.Undo().done, 2u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"caf\xE9.jpg", "1"}, {"\xFF\xFE \xC3\xA9", "2"}}));
}

TEST(BatchesOnLinux, RenameNamesWithEveryByteThatANameMayHave)
{
    BatchScene scene;
    FolderSnapshot before;
    FolderSnapshot after;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte == '/' || byte == '.')
            continue;
        const std::string name(1, static_cast<char>(byte));
        const CString text = VyrPlatform::Encoding::FromNameBytes(name);
        scene.Write(text, std::to_string(byte));
        scene.Rename(text, text + u"\n\\\t");
        before[name] = std::to_string(byte);
        after[name + "\n\\\t"] = std::to_string(byte);
    }
    EXPECT_EQ(scene.Apply().done, before.size());
    EXPECT_EQ(scene.Now(), after);
    EXPECT_EQ(scene.Undo().done, before.size());
    EXPECT_EQ(scene.Now(), before);
}

TEST(BatchesOnLinux, RenamePipesAndLinksToNothing)
{
    BatchScene scene;
    ASSERT_EQ(mkfifo(ToStdPath(scene.Path(u"pipe")).c_str(), 0600), 0);
    fs::create_symlink("nothing", ToStdPath(scene.Path(u"link")));
    scene.Rename(u"pipe", u"pipe 2", VyrPlatform::FileSystem::Kind::Other);
    scene.Rename(u"link", u"link 2", VyrPlatform::FileSystem::Kind::Other);
    EXPECT_EQ(scene.Apply().done, 2u);
    EXPECT_TRUE(fs::is_fifo(ToStdPath(scene.Path(u"pipe 2"))));
    EXPECT_EQ(fs::read_symlink(ToStdPath(scene.Path(u"link 2"))), "nothing");
    EXPECT_EQ(scene.Undo().done, 2u);
    EXPECT_TRUE(fs::is_fifo(ToStdPath(scene.Path(u"pipe"))));
}

TEST(BatchesOnLinux, FailInAFolderThatMayNotBeWritten)
{
    BatchScene scene;
    scene.Write(u"locked/a");
    scene.Write(u"open/b");
    scene.Rename(u"locked/a", u"locked/x").Rename(u"open/b", u"open/y");
    const WriteProtection protection(scene.Path(u"locked"));
    if (!protection.WhyNot().empty())
        GTEST_SKIP() << protection.WhyNot();
    const BatchSummary summary = scene.Apply();
    EXPECT_EQ(summary.done, 1u);
    EXPECT_EQ(scene.results[0].status, Status::Failed);
    EXPECT_TRUE(scene.results[0].error == EACCES || scene.results[0].error == EPERM);
    EXPECT_EQ(
        scene.Now(),
        (FolderSnapshot{{"locked", "<folder>"}, {"locked/a", "locked/a"}, {"open", "<folder>"}, {"open/y", "open/b"}}));
}

/// Moves the scene's files to `mounted`.
void MoveFilesTo(BatchScene& scene, const MountedFolder& mounted)
{
    fs::remove(ToStdPath(scene.Path(u"")).parent_path());
    fs::create_directory_symlink(ToStdPath(mounted.Path()), ToStdPath(scene.Path(u"")).parent_path());
}

TEST(BatchesOnLinux, NeverCrossFileSystems)
{
    const MountedFolder other(MountedFolder::Kind::Memory, "size=1m");
    if (!other.WhyNot().empty())
        GTEST_SKIP() << other.WhyNot();
    BatchScene scene;
    scene.Write(u"a");
    scene.Write(u"b");
    scene.list.Add(scene.Path(u"a"), other.Path(u"a"), VyrPlatform::FileSystem::Kind::File);
    scene.list.Add(scene.Path(u"b"), scene.Path(u"a"), VyrPlatform::FileSystem::Kind::File);
    EXPECT_EQ(scene.Apply().refused, 2u);
    EXPECT_GE(scene.results[0].reason.Find(u"another file system"), 0);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}, {"b", "b"}}));
}

TEST(BatchesOnLinux, DoNothingWhenTheDiskOfTheJournalIsFull)
{
    const MountedFolder disk(MountedFolder::Kind::Memory, "size=64k");
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    BatchScene scene;
    scene.batches = Batches(SystemFiles(), SettingsIn(disk.Path(u"journal")));
    scene.Write(u"a");
    scene.Rename(u"a", u"b");
    std::ofstream(ToStdPath(disk.Path(u"filler"))) << std::string(1 << 17, 'x');
    const BatchSummary summary = scene.Apply();
    EXPECT_GE(summary.error.Find(u"No space left"), 0);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}}));
    fs::remove(ToStdPath(disk.Path(u"filler")));
    EXPECT_EQ(scene.Apply().done, 1u);
}

TEST(BatchesOnLinux, RefuseOnlyEntriesThatDoNotFitOnTheDisk)
{
    // Room for the root, two files, the links and one folder.
    const MountedFolder disk(MountedFolder::Kind::Memory, "nr_inodes=4");
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    BatchScene scene;
    MoveFilesTo(scene, disk);
    scene.Write(u"a");
    scene.Write(u"b");
    scene.NewFolder(u"first").NewFolder(u"second");
    scene.Rename(u"a", u"first/a").Rename(u"b", u"second/b");
    EXPECT_EQ(scene.Apply().done, 1u);
    EXPECT_EQ(scene.results[1].status, Status::Refused);
    EXPECT_GE(scene.results[1].reason.Find(u"No space left"), 0);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"b", "b"}, {"first", "<folder>"}, {"first/a", "a"}}));
    EXPECT_EQ(scene.Undo().done, 1u);
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"a", "a"}, {"b", "b"}}));
}

TEST(BatchesOnLinux, RenameOnAFileSystemWithoutNoReplace)
{
    const MountedFolder disk(MountedFolder::Kind::PassedThrough);
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    BatchScene scene;
    MoveFilesTo(scene, disk);
    for (const char16_t* name : {u"1", u"2", u"a", u"b", u"d/f", u"taken", u"x"})
        scene.Write(name);
    scene.Rename(u"1", u"2").Rename(u"2", u"3").Rename(u"a", u"b").Rename(u"b", u"a");
    scene.RenameFolder(u"d", u"e").Rename(u"d/f", u"d/g").Rename(u"x", u"taken");
    const FolderSnapshot before = scene.Now();
    EXPECT_EQ(scene.Apply().done, 6u);
    EXPECT_EQ(scene.results[6].error, std::uint32_t{EEXIST});
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"2", "1"},
                                           {"3", "2"},
                                           {"a", "b"},
                                           {"b", "a"},
                                           {"e", "<folder>"},
                                           {"e/g", "d/f"},
                                           {"taken", "taken"},
                                           {"x", "x"}}));
    EXPECT_EQ(scene.Undo().done, 6u);
    EXPECT_EQ(scene.Now(), before);
}

TEST(BatchesOnLinux, ChangeTheCaseOfFoldersOnlyOnACaseInsensitiveFileSystemWithoutNoReplaceAndLinks)
{
    const MountedFolder disk(MountedFolder::Kind::Exfat);
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    BatchScene scene;
    MoveFilesTo(scene, disk);
    for (const char16_t* name : {u"file", u"Folder/X", u"A/1", u"b/2"})
        scene.Write(name);
    scene.RenameFolder(u"Folder", u"folder")
        .RenameFolder(u"A", u"B")
        .RenameFolder(u"b", u"a")
        .Rename(u"file", u"other");
    const FolderSnapshot before = scene.Now();
    EXPECT_EQ(scene.Apply().done, 3u);
    EXPECT_EQ(scene.results[3].error, std::uint32_t{EPERM});
    EXPECT_EQ(scene.Now(), (FolderSnapshot{{"B", "<folder>"},
                                           {"B/1", "A/1"},
                                           {"a", "<folder>"},
                                           {"a/2", "b/2"},
                                           {"file", "file"},
                                           {"folder", "<folder>"},
                                           {"folder/X", "Folder/X"}}));
    EXPECT_EQ(scene.Undo().done, 3u);
    EXPECT_EQ(scene.Now(), before);
}

TEST(RecoverOnLinux, FinishesARenameThatWasCutOffBetweenItsTwoCalls)
{
    for (const Recovery recovery : {Recovery::Undo, Recovery::Finish}) {
        CutOffScene cut(ArrangeThree, 1);
        // The state between link and unlink.
        fs::create_hard_link(ToStdPath(cut.scene.Path(u"b")), ToStdPath(cut.scene.Path(u"y")));
        EXPECT_EQ(cut.scene.Recover(recovery).error, u"");
        const bool isFinished = recovery == Recovery::Finish;
        EXPECT_EQ(cut.scene.Now(), isFinished ? (FolderSnapshot{{"x", "a"}, {"y", "b"}, {"z", "c"}})
                                              : (FolderSnapshot{{"a", "a"}, {"b", "b"}, {"c", "c"}}));
    }
}

TEST(RecoverOnLinux, FinishesAHalfDoneCycle)
{
    CutOffScene cut(
        [](BatchScene& scene) {
            scene.Write(u"a");
            scene.Write(u"b");
            scene.Rename(u"a", u"b").Rename(u"b", u"a");
        },
        1);
    // The second rename, b to a, has only its new name so far.
    fs::create_hard_link(ToStdPath(cut.scene.Path(u"b")), ToStdPath(cut.scene.Path(u"a")));
    EXPECT_EQ(cut.scene.Recover(Recovery::Undo).error, u"");
    EXPECT_EQ(cut.scene.Now(), (FolderSnapshot{{"a", "a"}, {"b", "b"}}));
}

} // namespace
