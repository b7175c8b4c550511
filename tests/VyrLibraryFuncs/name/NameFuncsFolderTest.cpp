// Folder copy and move on whole trees, compared entry by entry.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <VyrPlatform/files/FileTimes.h>

#include <tests/support/CurrentFolder.h>
#include <tests/support/EmptiedQueue.h>
#include <tests/support/FileMoments.h>
#include <tests/support/Links.h>
#include <tests/support/MessagePosting.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

using VyrLibraryFuncs::NameFuncs;
using VyrTests::CurrentFolder;
using VyrTests::ScratchFolder;

namespace {

using Records = std::list<NameFuncs::RENAMEITEM>;
using Operation = int (*)(CString, CString, Records*);

constexpr Operation operations[] = {&NameFuncs::CopyFolder, &NameFuncs::MoveFolder};

constexpr const char* folderMark = "(a folder)";

std::string ContentOf(const std::filesystem::path& file)
{
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

/// The entries below `folder`: their relative paths and contents.
std::map<std::string, std::string> Tree(const CString& folder)
{
    const std::filesystem::path root = VyrTests::ToStdPath(folder);
    std::map<std::string, std::string> entries;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root))
        entries[std::filesystem::relative(entry.path(), root).generic_string()] =
            entry.is_directory() ? folderMark : ContentOf(entry.path());
    return entries;
}

/// The folders of a tree, as the records name those that were made for it.
std::set<std::string> FoldersOf(const std::map<std::string, std::string>& tree)
{
    std::set<std::string> folders;
    for (const auto& [path, content] : tree)
        if (content == folderMark)
            folders.insert(path);
    return folders;
}

/// Makes a tree of about `size` entries below the folder `root` of `scratch`.
void MakeRandomTree(const ScratchFolder& scratch, std::u16string_view root, std::mt19937& random, int size)
{
    std::vector<CString> folders{CString(root)};
    scratch.MakeFolder(root);
    for (int i = 0; i < size; ++i) {
        const CString parent = folders[random() % folders.size()];
        const CString name = parent + u"/" + CString(static_cast<char16_t>(u'a' + i % 26), 1 + i / 26);
        if (random() % 3 == 0) {
            scratch.MakeFolder(name);
            folders.push_back(name);
        } else {
            scratch.WriteFile(name + u".txt", std::string(random() % 5000, static_cast<char>('0' + i % 10)));
        }
    }
}

} // namespace

TEST(NameFuncsFolder, EmptySourcePathIsNotTheCurrentFolder)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"current/sub/a.txt", "a");
    // A fault can then only harm this folder.
    const CurrentFolder current(scratch.Path(u"current"));
    const auto before = Tree(scratch.Path());
    for (const Operation operation : operations) {
        Records records;
        EXPECT_EQ(operation(u"", scratch.Path(u"to"), &records), 0);
        EXPECT_TRUE(records.empty());
        EXPECT_EQ(Tree(scratch.Path()), before);
    }
}

TEST(NameFuncsFolder, CopyHasAllEntriesAndKeepsTheSource)
{
    for (unsigned seed = 0; seed < 5; ++seed) {
        std::mt19937 random(seed);
        const ScratchFolder scratch;
        MakeRandomTree(scratch, u"from", random, 40);
        scratch.WriteFile(u"from/.hidden", "hidden");
        scratch.MakeFolder(u"from/.hidden folder");
        const auto before = Tree(scratch.Path(u"from"));
        Records records;
        NameFuncs::CopyFolder(scratch.Path(u"from"), scratch.MakeFolder(u"to"), &records);
        EXPECT_EQ(Tree(scratch.Path(u"from")), before);
        EXPECT_EQ(Tree(scratch.Path(u"to")), before);
        EXPECT_EQ(records.size(), FoldersOf(before).size());
    }
}

TEST(NameFuncsFolder, MoveTakesEverythingAndRemovesTheSource)
{
    for (unsigned seed = 0; seed < 5; ++seed) {
        std::mt19937 random(seed);
        const ScratchFolder scratch;
        MakeRandomTree(scratch, u"from", random, 40);
        scratch.WriteFile(u"from/.hidden", "hidden");
        const auto before = Tree(scratch.Path(u"from"));
        Records records;
        EXPECT_EQ(NameFuncs::MoveFolder(scratch.Path(u"from"), scratch.MakeFolder(u"to"), &records), 1);
        EXPECT_FALSE(scratch.Has(u"from"));
        EXPECT_EQ(Tree(scratch.Path(u"to")), before);
        EXPECT_EQ(records.size(), FoldersOf(before).size());
    }
}

TEST(NameFuncsFolder, NestedFoldersAreRecordedParentFirst)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        scratch.MakeFolder(u"from/1/2/3");
        Records records;
        operation(scratch.Path(u"from"), scratch.Path(u"to"), &records);
        ASSERT_EQ(records.size(), 3U);
        const char16_t* const expected[] = {u"to/1", u"to/1/2", u"to/1/2/3"};
        EXPECT_TRUE(std::equal(records.begin(), records.end(), std::begin(expected),
                               [&scratch](const NameFuncs::RENAMEITEM& record, const char16_t* path) {
                                   return record.destinationPath == scratch.Path(path);
                               }));
    }
}

TEST(NameFuncsFolder, CopyAndMoveOntoItselfLoseNothing)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        scratch.WriteFile(u"from/sub/a.txt", "a");
        const auto before = Tree(scratch.Path());
        Records records;
        EXPECT_EQ(operation(scratch.Path(u"from"), scratch.Path(u"from"), &records), 0);
        EXPECT_TRUE(records.empty());
        EXPECT_EQ(Tree(scratch.Path()), before);
    }
}

TEST(NameFuncsFolder, DeepTreesAreCopiedAndMoved)
{
    const ScratchFolder scratch;
    CString deepest = u"from";
    for (int depth = 0; depth < 60; ++depth)
        deepest += u"/d";
    scratch.WriteFile(deepest + u"/a.txt", "deep");
    const auto before = Tree(scratch.Path(u"from"));
    Records records;
    EXPECT_EQ(NameFuncs::CopyFolder(scratch.Path(u"from"), scratch.Path(u"to"), &records), 1);
    EXPECT_EQ(records.size(), 60U);
    EXPECT_EQ(Tree(scratch.Path(u"to")), before);
    EXPECT_EQ(NameFuncs::MoveFolder(scratch.Path(u"from"), scratch.Path(u"moved"), &records), 1);
    EXPECT_EQ(Tree(scratch.Path(u"moved")), before);
}

TEST(NameFuncsFolder, DestinationInsideTheSourceGivesZeroAndChangesNothing)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        scratch.WriteFile(u"from/sub/a.txt", "a");
        const auto before = Tree(scratch.Path());
        for (const char16_t* const inside :
             {u"from/to", u"from/sub", u"from/sub/x/y", u"from/../from/to", u"from/sub/..", u"new/../from/x"}) {
            Records records;
            EXPECT_EQ(operation(scratch.Path(u"from"), scratch.Path(inside), &records), 0);
            EXPECT_TRUE(records.empty());
            EXPECT_EQ(Tree(scratch.Path()), before);
        }
    }
}

TEST(NameFuncsFolder, EmptyDestinationIsTheCurrentFolder)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        scratch.WriteFile(u"from/sub/a.txt", "a");
        const CurrentFolder current(scratch.MakeFolder(u"current"));
        EXPECT_EQ(operation(scratch.Path(u"from"), u"", nullptr), 1);
        EXPECT_EQ(scratch.ReadFile(u"current/sub/a.txt"), "a");
    }
}

TEST(NameFuncsFolder, CurrentFolderInsideTheSourceIsRefusedAsAnEmptyDestination)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        scratch.WriteFile(u"from/sub/a.txt", "a");
        const auto before = Tree(scratch.Path());
        const CurrentFolder current(scratch.Path(u"from/sub"));
        const VyrTests::MessagePosting queue;
        const VyrTests::EmptiedQueue emptied;
        // A walk that has begun would never end inside its own source.
        queue.PostWork([&scratch] { std::filesystem::current_path(VyrTests::ToStdPath(scratch.Path())); });
        Records records;
        EXPECT_EQ(operation(scratch.Path(u"from"), u"", &records), 0);
        EXPECT_TRUE(records.empty());
        EXPECT_EQ(Tree(scratch.Path()), before);
    }
}

TEST(NameFuncsFolder, LinkInTheDestinationThatLeadsIntoTheSourceIsNotFollowed)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        scratch.WriteFile(u"from/a/b/c.txt", "c");
        scratch.MakeFolder(u"to");
        const CString link = scratch.Path(u"to/a");
        if (const std::string whyNot = VyrTests::MakeLink(scratch.Path(u"from/a/b"), link); !whyNot.empty())
            GTEST_SKIP() << whyNot;
        const auto before = Tree(scratch.Path(u"from"));
        const VyrTests::MessagePosting queue;
        const VyrTests::EmptiedQueue emptied;
        // A walk that follows the link would never end.
        for (int i = 0; i < 20; ++i)
            queue.PostWork([&scratch, path = VyrTests::ToStdPath(link)] {
                if (scratch.Has(u"from/a/b/b") && std::filesystem::is_symlink(path))
                    std::filesystem::remove(path);
            });
        Records records;
        EXPECT_EQ(operation(scratch.Path(u"from"), scratch.Path(u"to"), &records), 0);
        EXPECT_TRUE(records.empty());
        EXPECT_EQ(Tree(scratch.Path(u"from")), before);
    }
}

TEST(NameFuncsFolder, DestinationWhoseNameBeginsLikeTheSourceIsNotInside)
{
    for (const Operation operation : operations) {
        const ScratchFolder scratch;
        scratch.WriteFile(u"from/sub/a.txt", "a");
        for (const char16_t* const outside : {u"from2", u"fro", u"other/from"}) {
            scratch.WriteFile(u"from/sub/a.txt", "a");
            Records records;
            EXPECT_EQ(operation(scratch.Path(u"from"), scratch.Path(outside), &records), 1);
            EXPECT_EQ(Tree(scratch.Path(outside)).size(), 2U);
        }
    }
}

TEST(NameFuncsFolder, MoveOntoAnotherHardLinkRemovesTheSource)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"from/a.txt", "a");
    scratch.MakeFolder(u"to");
    std::filesystem::create_hard_link(VyrTests::ToStdPath(file), VyrTests::ToStdPath(scratch.Path(u"to/a.txt")));
    EXPECT_EQ(NameFuncs::MoveFolder(scratch.Path(u"from"), scratch.Path(u"to"), nullptr), 1);
    EXPECT_FALSE(scratch.Has(u"from"));
    EXPECT_EQ(scratch.ReadFile(u"to/a.txt"), "a");
}

TEST(NameFuncsFolder, FolderIsReadBeforeAnEventIsHandled)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"from/a.txt", "a");
    scratch.MakeFolder(u"to");
    const VyrTests::MessagePosting queue;
    const VyrTests::EmptiedQueue emptied;
    queue.PostWork([&scratch] { scratch.WriteFile(u"from/late.txt", "late"); });
    EXPECT_EQ(NameFuncs::CopyFolder(scratch.Path(u"from"), scratch.Path(u"to"), nullptr), 1);
    EXPECT_TRUE(scratch.Has(u"from/late.txt"));
    EXPECT_FALSE(scratch.Has(u"to/late.txt"));
}

TEST(NameFuncsFolder, RecordHoldsTheCreationTimeOfItsSourceAndNotTheModifiedTime)
{
    const ScratchFolder scratch;
    const CString folder = scratch.MakeFolder(u"from/sub");
    const VyrPlatform::FileTicks modified = VyrTests::TicksOfUnixTime(1'000'000'000);
    VyrTests::StampFile(folder, modified, modified);
    const VyrPlatform::FileTicks created = VyrPlatform::FileTimes::GetCreated(folder).value();
    if (created == modified)
        GTEST_SKIP() << "this file system tells no creation time of its own";
    Records records;
    static_cast<void>(NameFuncs::CopyFolder(scratch.Path(u"from"), scratch.Path(u"to"), &records));
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records.front().dateCreated, VyrPlatform::FileTimes::ToLocal(created));
    EXPECT_EQ(records.front().dateModified, VyrPlatform::FileTimes::ToLocal(modified));
}
