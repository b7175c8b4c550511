#include <VyrHost/foldercopy/FolderSnapshot.h>

#include <VyrPlatform/files/FileTimes.h>
#include <tests/support/FileMoments.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <map>

using namespace VyrHost::FolderCopy;
using VyrTests::ScratchFolder;

namespace {

/// The entries of a snapshot by their names, which are unique in these tests.
std::map<CString, SnapshotEntry> EntriesOf(const FolderSnapshot& tree)
{
    std::map<CString, SnapshotEntry> entries;
    for (const SnapshotEntry& entry : tree.entries)
        entries.emplace(entry.name, entry);
    return entries;
}

} // namespace

TEST(FolderSnapshot, HoldsEveryEntryHiddenOnesIncluded)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"root/a", "123");
    scratch.WriteFile(u"root/.hidden", "12345");
    scratch.WriteFile(u"root/sub/deep/b");
    scratch.MakeFolder(u"root/empty");
    const FolderSnapshot tree = TakeSnapshot(scratch.Path(u"root"));
    EXPECT_EQ(tree.root, scratch.Path(u"root"));
    const auto entries = EntriesOf(tree);
    ASSERT_EQ(entries.size(), 6u);
    EXPECT_EQ(entries.at(u"a").kind, SnapshotKind::File);
    EXPECT_EQ(entries.at(u"a").size, 3);
    EXPECT_EQ(entries.at(u".hidden").size, 5);
    EXPECT_EQ(entries.at(u"deep").kind, SnapshotKind::Folder);
    EXPECT_EQ(entries.at(u"empty").kind, SnapshotKind::Folder);
    const VyrHost::Model::TreeSize size = SizeOf(tree);
    EXPECT_EQ(size.folders, 4u);
    EXPECT_EQ(size.files, 3u);
    EXPECT_EQ(size.bytes, 8);
}

TEST(FolderSnapshot, HasEachFolderWithItsEntriesBeforeItsSubfolders)
{
    const ScratchFolder scratch;
    for (const char16_t* const name : {u"root/x/1", u"root/x/y/2", u"root/x/y/z/3", u"root/w/4"})
        scratch.WriteFile(name);
    const FolderSnapshot tree = TakeSnapshot(scratch.Path(u"root"));
    ASSERT_EQ(tree.folders.size(), 5u);
    EXPECT_TRUE(tree.folders[0].path.IsEmpty());
    std::size_t total = 0;
    for (std::size_t number = 0; number < tree.folders.size(); ++number) {
        const SnapshotFolder& folder = tree.folders[number];
        EXPECT_EQ(folder.error, 0u);
        EXPECT_EQ(folder.firstEntry, total);
        total += folder.entryCount;
        for (std::size_t index = 0; index < folder.entryCount; ++index) {
            const SnapshotEntry& entry = tree.entries[folder.firstEntry + index];
            if (entry.kind != SnapshotKind::Folder)
                continue;
            EXPECT_GT(entry.folder, number);
            EXPECT_EQ(tree.folders.at(entry.folder).path.Right(1), entry.name);
        }
    }
    EXPECT_EQ(total, tree.entries.size());
}

TEST(FolderSnapshot, HasTheExactTimesOfItsFolders)
{
    const ScratchFolder scratch;
    const CString inner = scratch.MakeFolder(u"root/inner");
    constexpr auto modified = VyrTests::TicksOfUnixTime(1'234'567'890, 1'234'567);
    VyrTests::StampFile(inner, modified, modified);
    const FolderSnapshot tree = TakeSnapshot(scratch.Path(u"root"));
    ASSERT_EQ(tree.folders.size(), 2u);
    EXPECT_EQ(tree.folders[1].modified, modified);
    EXPECT_EQ(tree.folders[1].created, VyrPlatform::FileTimes::GetCreated(inner));
    EXPECT_EQ(tree.folders[0].modified, VyrPlatform::FileTimes::GetModified(scratch.Path(u"root")));
}

TEST(FolderSnapshot, OfAMissingFolderHasARootThatCannotBeRead)
{
    const ScratchFolder scratch;
    const FolderSnapshot tree = TakeSnapshot(scratch.Path(u"missing"));
    ASSERT_EQ(tree.folders.size(), 1u);
    EXPECT_NE(tree.folders[0].error, 0u);
    EXPECT_TRUE(tree.entries.empty());
}
