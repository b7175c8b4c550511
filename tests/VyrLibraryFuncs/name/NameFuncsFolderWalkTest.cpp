// Results, records, overwriting, and event handling of the walk through a tree.
#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/CFileFind.h>
#include <VyrPlatform/process/MessageQueue.h>

#include <tests/support/Describe.h>
#include <tests/support/EmptiedQueue.h>
#include <tests/support/FileMoments.h>
#include <tests/support/MessagePosting.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <filesystem>
#include <gtest/gtest.h>
#include <list>
#include <string>
#include <vector>

using VyrLibraryFuncs::NameFuncs;
using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::FileUtils;
using VyrTests::Describe;
using VyrTests::ScratchFolder;

namespace {

using Records = std::list<NameFuncs::RENAMEITEM>;
using Operation = int (*)(CString, CString, Records*);

const std::vector<Operation> operations = {&NameFuncs::CopyFolder, &NameFuncs::MoveFolder};

/// The entries of `folder` in the order in which the system gives them.
std::vector<CString> NamesIn(const CString& folder)
{
    std::vector<CString> names;
    CFileFind finder;
    for (bool more = finder.FindFile(FileUtils::GetCombinePath(folder, u"*.*")); more;) {
        more = finder.FindNextFile();
        if (!finder.IsDots())
            names.push_back(finder.GetFileName());
    }
    return names;
}

/// The paths of all folders below `folder`, parents first, in the system's order.
void ListFolders(const CString& folder, const CString& below, std::vector<CString>& folders)
{
    for (const CString& name : NamesIn(folder)) {
        const CString path = FileUtils::GetCombinePath(folder, name);
        if (!FileUtils::IsDirectory(path))
            continue;
        folders.push_back(below + name);
        ListFolders(path, below + name + u"/", folders);
    }
}

void Stamp(const CString& path, std::int64_t unixTime)
{
    VyrTests::StampFile(path, VyrTests::TicksOfUnixTime(unixTime), VyrTests::TicksOfUnixTime(unixTime));
}

} // namespace

TEST(NameFuncsFolderWalk, CopyOfAnEmptyFolderGivesZeroAndMoveRemovesIt)
{
    const ScratchFolder scratch;
    const CString source = scratch.MakeFolder(u"s");
    const CString destination = scratch.Path(u"d");
    Records records;
    EXPECT_EQ(NameFuncs::CopyFolder(source, destination, &records), 0);
    EXPECT_TRUE(scratch.Has(u"s"));
    EXPECT_EQ(NameFuncs::MoveFolder(source, destination, &records), 1);
    EXPECT_FALSE(scratch.Has(u"s"));
    EXPECT_FALSE(scratch.Has(u"d"));
    EXPECT_TRUE(records.empty());
}

TEST(NameFuncsFolderWalk, SourceThatIsNoFolderGivesZeroAndChangesNothing)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"file", "kept");
    for (const Operation operation : operations)
        for (const CString& source : {scratch.Path(u"missing"), file, CString()}) {
            Records records;
            EXPECT_EQ(operation(source, scratch.Path(u"d"), &records), 0);
            EXPECT_TRUE(records.empty());
            EXPECT_FALSE(scratch.Has(u"d"));
            EXPECT_EQ(scratch.ReadFile(u"file"), "kept");
        }
}

TEST(NameFuncsFolderWalk, RecordsFollowTheWalkEachParentBeforeItsFolders)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        for (const char16_t* const folder : {u"s/a/b/c", u"s/a/d", u"s/.e/f", u"s/g.h"})
            scratch.MakeFolder(folder);
        scratch.WriteFile(u"s/a/file", "x");
        std::vector<CString> folders;
        ListFolders(scratch.Path(u"s"), CString(), folders);
        ASSERT_EQ(folders.size(), 7U);
        scratch.MakeFolder(u"d");
        Records records;
        operation(scratch.Path(u"s"), scratch.Path(u"d"), &records);
        ASSERT_EQ(records.size(), folders.size());
        auto folder = folders.begin();
        for (const NameFuncs::RENAMEITEM& record : records) {
            EXPECT_EQ(record.sourcePath, scratch.Path(u"s/" + *folder));
            EXPECT_EQ(record.destinationPath, scratch.Path(u"d/" + *folder));
            ++folder;
        }
    }
}

TEST(NameFuncsFolderWalk, RecordHoldsTheTimesThatTheSourceFolderHadBefore)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        scratch.WriteFile(u"s/a/b/file", "x");
        const CString outer = scratch.Path(u"s/a");
        const CString inner = scratch.Path(u"s/a/b");
        Stamp(inner, 1'500'000'000);
        Stamp(outer, 1'400'000'000);
        const std::vector<std::string> modified = {Describe(DateTimeUtils::GetDateModified(outer)),
                                                   Describe(DateTimeUtils::GetDateModified(inner))};
        const std::vector<std::string> created = {Describe(DateTimeUtils::GetDateCreated(outer)),
                                                  Describe(DateTimeUtils::GetDateCreated(inner))};
        ASSERT_NE(modified[0], modified[1]);
        scratch.MakeFolder(u"d");
        Records records;
        EXPECT_EQ(operation(scratch.Path(u"s"), scratch.Path(u"d"), &records), 1);
        ASSERT_EQ(records.size(), 2U);
        EXPECT_EQ(Describe(records.front().dateModified), modified[0]);
        EXPECT_EQ(Describe(records.back().dateModified), modified[1]);
        EXPECT_EQ(Describe(records.front().dateCreated), created[0]);
        EXPECT_EQ(Describe(records.back().dateCreated), created[1]);
    }
}

TEST(NameFuncsFolderWalk, RecordsAreAppendedAndNeverCleared)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        scratch.MakeFolder(u"s/a");
        scratch.MakeFolder(u"d");
        Records records(1);
        records.front().sourcePath = u"mine";
        operation(scratch.Path(u"s"), scratch.Path(u"d"), &records);
        ASSERT_EQ(records.size(), 2U);
        EXPECT_EQ(records.front().sourcePath, u"mine");
        EXPECT_EQ(records.back().destinationPath, scratch.Path(u"d/a"));
    }
}

TEST(NameFuncsFolderWalk, NoListMeansNoRecords)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        scratch.WriteFile(u"s/a/file", "x");
        scratch.MakeFolder(u"d");
        EXPECT_EQ(operation(scratch.Path(u"s"), scratch.Path(u"d"), nullptr), 1);
        EXPECT_EQ(scratch.ReadFile(u"d/a/file"), "x");
    }
}

TEST(NameFuncsFolderWalk, ExistingFolderGetsTheContentsWithoutARecord)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        scratch.WriteFile(u"s/a/file", "new");
        scratch.WriteFile(u"s/a/b/other", "new");
        scratch.WriteFile(u"d/a/file", "old, and longer");
        scratch.WriteFile(u"d/a/own", "own");
        Records records;
        EXPECT_EQ(operation(scratch.Path(u"s"), scratch.Path(u"d"), &records), 1);
        EXPECT_EQ(scratch.ReadFile(u"d/a/file"), "new");
        EXPECT_EQ(scratch.ReadFile(u"d/a/own"), "own");
        EXPECT_EQ(scratch.ReadFile(u"d/a/b/other"), "new");
        ASSERT_EQ(records.size(), 1U);
        EXPECT_EQ(records.front().destinationPath, scratch.Path(u"d/a/b"));
    }
}

TEST(NameFuncsFolderWalk, SeparatorAtTheEndOfEitherPathIsNotDoubled)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        scratch.WriteFile(u"s/a/file", "x");
        scratch.MakeFolder(u"d");
        const CString end = scratch.Path(u"x").Right(2).Left(1);
        Records records;
        EXPECT_EQ(operation(scratch.Path(u"s") + end, scratch.Path(u"d") + end, &records), 1);
        ASSERT_EQ(records.size(), 1U);
        EXPECT_EQ(records.front().sourcePath, scratch.Path(u"s/a"));
        EXPECT_EQ(records.front().destinationPath, scratch.Path(u"d/a"));
    }
}

TEST(NameFuncsFolderWalk, MissingDestinationIsCreatedOnlyForFoldersInTheSource)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        scratch.WriteFile(u"s/file", "kept");
        Records records;
        EXPECT_EQ(operation(scratch.Path(u"s"), scratch.Path(u"d/e"), &records), 0);
        EXPECT_FALSE(scratch.Has(u"d"));
        EXPECT_EQ(scratch.ReadFile(u"s/file"), "kept");

        scratch.WriteFile(u"t/a/file", "x");
        EXPECT_EQ(operation(scratch.Path(u"t"), scratch.Path(u"d/e"), &records), 1);
        EXPECT_EQ(scratch.ReadFile(u"d/e/a/file"), "x");
        ASSERT_EQ(records.size(), 1U);
        EXPECT_EQ(records.front().destinationPath, scratch.Path(u"d/e/a"));
    }
}

TEST(NameFuncsFolderWalk, CopyReturnsTheResultOfItsLastEntry)
{
    for (const bool isLastBlocked : {false, true}) {
        const ScratchFolder scratch;
        for (const char16_t* const name : {u"s/a", u"s/b", u"s/c"})
            scratch.WriteFile(name, "x");
        const std::vector<CString> names = NamesIn(scratch.Path(u"s"));
        ASSERT_EQ(names.size(), 3U);
        // A folder has the path of one of the files.
        scratch.MakeFolder(u"d/" + (isLastBlocked ? names.back() : names.front()));
        Records records;
        EXPECT_EQ(NameFuncs::CopyFolder(scratch.Path(u"s"), scratch.Path(u"d"), &records), isLastBlocked ? 0 : 1);
        EXPECT_EQ(scratch.ReadFile(u"d/" + names[1]), "x");
        EXPECT_EQ(NamesIn(scratch.Path(u"d")).size(), 3U) << "a failure ends nothing";
    }
}

TEST(NameFuncsFolderWalk, CopyThatEndsWithAnEmptyFolderReturnsZero)
{
    const ScratchFolder scratch;
    scratch.MakeFolder(u"s/a/empty");
    scratch.MakeFolder(u"d");
    Records records;
    EXPECT_EQ(NameFuncs::CopyFolder(scratch.Path(u"s"), scratch.Path(u"d"), &records), 0);
    EXPECT_EQ(records.size(), 2U);
    EXPECT_TRUE(scratch.Has(u"d/a/empty"));
}

TEST(NameFuncsFolderWalk, CopyReturnsTheResultOfTheLastFolder)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"s/a/in", "x");
    scratch.WriteFile(u"s/b/in", "x");
    const std::vector<CString> names = NamesIn(scratch.Path(u"s"));
    ASSERT_EQ(names.size(), 2U);
    scratch.MakeFolder(u"d/" + names[0] + u"/in");
    EXPECT_EQ(NameFuncs::CopyFolder(scratch.Path(u"s"), scratch.Path(u"d"), nullptr), 1);
    scratch.MakeFolder(u"e/" + names[1] + u"/in");
    EXPECT_EQ(NameFuncs::CopyFolder(scratch.Path(u"s"), scratch.Path(u"e"), nullptr), 0);
}

TEST(NameFuncsFolderWalk, MoveKeepsEntriesThatItCannotMoveAndReturnsZero)
{
    for (const char16_t* const blocked : {u"a", u"b", u"c"}) {
        const ScratchFolder scratch;
        for (const char16_t* const name : {u"s/a", u"s/b", u"s/c"})
            scratch.WriteFile(name, "x");
        scratch.MakeFolder(CString(u"d/") + blocked);
        Records records;
        EXPECT_EQ(NameFuncs::MoveFolder(scratch.Path(u"s"), scratch.Path(u"d"), &records), 0);
        ASSERT_EQ(NamesIn(scratch.Path(u"s")).size(), 1U);
        EXPECT_EQ(scratch.ReadFile(CString(u"s/") + blocked), "x");
        EXPECT_EQ(NamesIn(scratch.Path(u"d")).size(), 3U);
        EXPECT_TRUE(records.empty());
    }
}

TEST(NameFuncsFolderWalk, MoveRemovesEmptiedFoldersThoughAnotherStays)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"s/a/in", "a");
    scratch.WriteFile(u"s/b/in", "b");
    scratch.MakeFolder(u"d/a/in");
    EXPECT_EQ(NameFuncs::MoveFolder(scratch.Path(u"s"), scratch.Path(u"d"), nullptr), 0);
    EXPECT_EQ(scratch.ReadFile(u"s/a/in"), "a");
    EXPECT_FALSE(scratch.Has(u"s/b"));
    EXPECT_EQ(scratch.ReadFile(u"d/b/in"), "b");
}

TEST(NameFuncsFolderWalk, FolderThatCannotBeMadeGetsNoRecordAndItsContentsFail)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        scratch.WriteFile(u"s/a/b/in", "x");
        scratch.WriteFile(u"s/a/in", "y");
        scratch.WriteFile(u"d/a", "in the way");
        Records records;
        EXPECT_EQ(operation(scratch.Path(u"s"), scratch.Path(u"d"), &records), 0);
        EXPECT_TRUE(records.empty());
        EXPECT_EQ(scratch.ReadFile(u"d/a"), "in the way");
        EXPECT_EQ(scratch.ReadFile(u"s/a/b/in"), "x");
        EXPECT_EQ(scratch.ReadFile(u"s/a/in"), "y");
    }
}

TEST(NameFuncsFolderWalk, FolderWhoseMakingFailsIsWalkedAllTheSame)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        for (const char16_t* const name : {u"s/a/1", u"s/a/2", u"s/a/3"})
            scratch.WriteFile(name, "x");
        // There is no entry at the new path of "a", nor can there be.
        scratch.WriteFile(u"d", "a file");
        const VyrTests::MessagePosting queue;
        const VyrTests::EmptiedQueue emptied;
        int handled = 0;
        for (int i = 0; i < 20; ++i)
            queue.PostWork([&handled] { ++handled; });
        Records records;
        EXPECT_EQ(operation(scratch.Path(u"s"), scratch.Path(u"d"), &records), 0);
        // "." and ".." twice, a, and its three files.
        EXPECT_EQ(handled, 8);
        EXPECT_TRUE(records.empty());
        EXPECT_EQ(NamesIn(scratch.Path(u"s/a")).size(), 3U);
        EXPECT_EQ(scratch.ReadFile(u"d"), "a file");
    }
}

TEST(NameFuncsFolderWalk, MoveReplacesAnExistingFile)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"s/file", "new");
    scratch.WriteFile(u"d/file", "old, and longer");
    EXPECT_EQ(NameFuncs::MoveFolder(scratch.Path(u"s"), scratch.Path(u"d"), nullptr), 1);
    EXPECT_EQ(scratch.ReadFile(u"d/file"), "new");
    EXPECT_FALSE(scratch.Has(u"s"));
}

TEST(NameFuncsFolderWalk, StopEndsNoWalkAndIsTaken)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        for (const char16_t* const name : {u"s/a", u"s/b", u"s/c/d", u"s/e"})
            scratch.WriteFile(name, "x");
        scratch.MakeFolder(u"d");
        const VyrTests::MessagePosting queue;
        const VyrTests::EmptiedQueue emptied;
        queue.PostStop();
        operation(scratch.Path(u"s"), scratch.Path(u"d"), nullptr);
        EXPECT_EQ(NamesIn(scratch.Path(u"d")).size(), 4U);
        EXPECT_TRUE(scratch.Has(u"d/c/d"));
        for (int i = 0; i < 10; ++i)
            EXPECT_FALSE(VyrPlatform::MessageQueue::DrainOne());
    }
}

TEST(NameFuncsFolderWalk, WalkHandlesOneMessageForEachEntryTheDotsIncluded)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"s/a", "x");
    scratch.WriteFile(u"s/b/c", "x");
    scratch.MakeFolder(u"d");
    const VyrTests::MessagePosting queue;
    int handled = 0;
    const VyrTests::EmptiedQueue emptied;
    for (int i = 0; i < 20; ++i)
        queue.PostWork([&handled] { ++handled; });
    // "." and ".." twice, a, b and c.
    NameFuncs::CopyFolder(scratch.Path(u"s"), scratch.Path(u"d"), nullptr);
    EXPECT_EQ(handled, 7);
    NameFuncs::MoveFolder(scratch.Path(u"s"), scratch.Path(u"e"), nullptr);
    EXPECT_EQ(handled, 14);
}

TEST(NameFuncsFolderWalk, FileRemovedDuringTheWalkIsSkipped)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        const CString file = scratch.WriteFile(u"s/a", "x");
        scratch.MakeFolder(u"d");
        const VyrTests::MessagePosting queue;
        const VyrTests::EmptiedQueue emptied;
        // Handled at the first entry, before any entry is looked at.
        queue.PostWork([&file] { std::filesystem::remove(VyrTests::ToStdPath(file)); });
        EXPECT_EQ(operation(scratch.Path(u"s"), scratch.Path(u"d"), nullptr), operation == operations.front() ? 0 : 1);
        EXPECT_FALSE(scratch.Has(u"d/a"));
    }
}

TEST(NameFuncsFolderWalk, FileRemovedDuringTheWalkKeepsTheResultBefore)
{
    const ScratchFolder scratch;
    for (const char16_t* const name : {u"s/a", u"s/b", u"s/c"})
        scratch.WriteFile(name, "x");
    scratch.MakeFolder(u"d");
    const CString last = scratch.Path(u"s/" + NamesIn(scratch.Path(u"s")).back());
    const VyrTests::MessagePosting queue;
    const VyrTests::EmptiedQueue emptied;
    queue.PostWork([&last] { std::filesystem::remove(VyrTests::ToStdPath(last)); });
    EXPECT_EQ(NameFuncs::CopyFolder(scratch.Path(u"s"), scratch.Path(u"d"), nullptr), 1);
    EXPECT_EQ(NamesIn(scratch.Path(u"d")).size(), 2U);
}
