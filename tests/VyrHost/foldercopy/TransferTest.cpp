// Copying and moving of trees, the comparison afterwards, and the times of folders.
#include "Snapshot.h"

#include <VyrHost/foldercopy/Transfer.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileTimes.h>
#include <tests/support/FileMoments.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <filesystem>

namespace fs = std::filesystem;
namespace FileTimes = VyrPlatform::FileTimes;
using namespace VyrHost::FolderCopy;
using VyrTests::SnapshotOf;
using VyrTests::TicksOfUnixTime;
using VyrTests::ToStdPath;
using VyrTests::TreeSnapshot;

namespace {

/// The folder "from", to be copied or moved to "to".
class FolderTransfer : public testing::Test
{
protected:
    /// Calls the library for the tree.
    void Transfer(TransferAction action)
    {
        m_tree = TakeSnapshot(m_scratch.Path(u"from"));
        ASSERT_EQ(TransferFolder(m_tree, m_scratch.Path(u"to"), action, m_records, [](std::size_t) {}), 0u);
    }
    [[nodiscard]] TransferProblems Finish(TransferAction action)
    {
        return FinishTransfer(m_tree, m_scratch.Path(u"to"), action, m_records);
    }
    /// Does all steps, and expects no problem.
    void TransferWell(TransferAction action)
    {
        Transfer(action);
        EXPECT_TRUE(Finish(action).empty());
        EXPECT_TRUE(CompleteFolders(m_tree, m_records).problems.empty());
    }
    [[nodiscard]] TreeSnapshot From() const { return SnapshotOf(m_scratch.Path(u"from")); }
    [[nodiscard]] TreeSnapshot To() const { return SnapshotOf(m_scratch.Path(u"to")); }

    const VyrTests::ScratchFolder m_scratch;
    FolderSnapshot m_tree;
    TransferRecords m_records;
};

/// The paths of the problems with the fault `fault`.
std::vector<CString> PathsOf(const TransferProblems& problems, TransferFault fault)
{
    std::vector<CString> paths;
    for (const TransferProblem& problem : problems) {
        EXPECT_EQ(problem.fault, fault) << problem.error;
        paths.push_back(problem.path);
    }
    return paths;
}

using Paths = std::vector<CString>;
const TreeSnapshot Missing = {{"missing", ""}};

} // namespace

TEST_F(FolderTransfer, CopyIsTheSameTree)
{
    m_scratch.WriteFile(u"from/a", "1");
    m_scratch.WriteFile(u"from/.hidden/b", "22");
    m_scratch.WriteFile(u"from/x/y/z", "");
    m_scratch.MakeFolder(u"from/empty");
    const TreeSnapshot before = From();
    ASSERT_EQ(before.size(), 7u);
    TransferWell(TransferAction::Copy);
    EXPECT_EQ(To(), before);
    EXPECT_EQ(From(), before);
    EXPECT_EQ(m_records.size(), 5u);
}

TEST_F(FolderTransfer, MoveRemovesTheSource)
{
    m_scratch.WriteFile(u"from/a", "1");
    m_scratch.WriteFile(u"from/x/y/z", "3");
    m_scratch.MakeFolder(u"from/empty");
    const TreeSnapshot before = From();
    TransferWell(TransferAction::Move);
    EXPECT_EQ(To(), before);
    EXPECT_EQ(From(), Missing);
}

TEST_F(FolderTransfer, EmptyFolderIsCopied)
{
    m_scratch.MakeFolder(u"from");
    TransferWell(TransferAction::Copy);
    EXPECT_EQ(To(), TreeSnapshot());
    EXPECT_EQ(From(), TreeSnapshot());
    fs::remove(ToStdPath(m_scratch.Path(u"to")));
    TransferWell(TransferAction::Move);
    EXPECT_EQ(To(), TreeSnapshot());
    EXPECT_EQ(From(), Missing);
}

TEST_F(FolderTransfer, NestedFoldersKeepTheirTimesToTheTick)
{
    for (const TransferAction action : {TransferAction::Copy, TransferAction::Move}) {
        m_records.clear();
        m_scratch.WriteFile(u"from/a/b/c/file", "1");
        m_scratch.WriteFile(u"from/a/file", "2");
        std::int64_t seconds = 1'234'567'890;
        for (const char16_t* const name : {u"from/a/b/c", u"from/a/b", u"from/a", u"from"}) {
            VyrTests::StampFile(m_scratch.Path(name), TicksOfUnixTime(seconds, 1'234'567), TicksOfUnixTime(0));
            seconds += 100'000'000;
        }
        TransferWell(action);
        seconds = 1'234'567'890;
        for (const char16_t* const name : {u"to/a/b/c", u"to/a/b", u"to/a", u"to"}) {
            EXPECT_EQ(FileTimes::GetModified(m_scratch.Path(name)), TicksOfUnixTime(seconds, 1'234'567));
            seconds += 100'000'000;
        }
        fs::remove_all(ToStdPath(m_scratch.Path(u"to")));
    }
}

TEST_F(FolderTransfer, FoldersKeepTheirCreationTime)
{
    m_scratch.MakeFolder(u"from/a");
    constexpr auto created = TicksOfUnixTime(1'000'000'000, 7'654'321);
    for (const char16_t* const name : {u"from/a", u"from"}) {
        const auto before = FileTimes::GetCreated(m_scratch.Path(name));
        ASSERT_EQ(FileTimes::SetCreated(m_scratch.Path(name), created), 0u);
        if (FileTimes::GetCreated(m_scratch.Path(name)) == before)
            GTEST_SKIP() << "Wine answers that it set the creation time, and drops it";
    }
    TransferWell(TransferAction::Copy);
    EXPECT_EQ(FileTimes::GetCreated(m_scratch.Path(u"to/a")), created);
    EXPECT_EQ(FileTimes::GetCreated(m_scratch.Path(u"to")), created);
}

TEST_F(FolderTransfer, TimesAreThoseOfTheSnapshot)
{
    m_scratch.MakeFolder(u"from");
    TransferWell(TransferAction::Copy);
    constexpr auto modified = TicksOfUnixTime(1'111'111'111);
    m_records.back().dateModified = FileTimes::ToLocal(modified);
    EXPECT_TRUE(CompleteFolders(m_tree, m_records).problems.empty());
    EXPECT_EQ(FileTimes::GetModified(m_scratch.Path(u"to")), modified);
}

TEST_F(FolderTransfer, TimesOfAFolderThatIsGoneAreAProblem)
{
    m_scratch.MakeFolder(u"from/a");
    Transfer(TransferAction::Copy);
    fs::remove(ToStdPath(m_scratch.Path(u"to/a")));
    const CreatedFoldersResult result = CompleteFolders(m_tree, m_records);
    EXPECT_EQ(PathsOf(result.problems, TransferFault::FolderNotSet), Paths{u"a"});
    EXPECT_NE(result.problems.at(0).error, 0u);
    EXPECT_NE(result.creationError, 0u);
}

TEST_F(FolderTransfer, ExistingFolderIsMerged)
{
    m_scratch.WriteFile(u"from/a/new", "1");
    m_scratch.WriteFile(u"to/a/old", "2");
    TransferWell(TransferAction::Move);
    EXPECT_EQ(To(), (TreeSnapshot{{"a", "<folder>"}, {"a/new", "1"}, {"a/old", "2"}}));
    EXPECT_EQ(From(), Missing);
    EXPECT_TRUE(m_records.empty());
}

TEST_F(FolderTransfer, RootThatCannotBeCreatedIsAProblem)
{
    m_scratch.WriteFile(u"from/a", "1");
    m_scratch.WriteFile(u"file");
    const FolderSnapshot tree = TakeSnapshot(m_scratch.Path(u"from"));
    for (const char16_t* const target : {u"file", u"missing/to"})
        EXPECT_NE(TransferFolder(tree, m_scratch.Path(target), TransferAction::Move, m_records, [](std::size_t) {}),
                  0u);
    EXPECT_EQ(From(), (TreeSnapshot{{"a", "1"}}));
    EXPECT_FALSE(m_scratch.Has(u"missing"));
}

TEST_F(FolderTransfer, MissingEntriesAreTriedAgain)
{
    for (const TransferAction action : {TransferAction::Copy, TransferAction::Move}) {
        m_records.clear();
        m_scratch.WriteFile(u"from/a/b/file", "1");
        m_scratch.WriteFile(u"from/c", "2");
        m_tree = TakeSnapshot(m_scratch.Path(u"from"));
        constexpr auto modified = TicksOfUnixTime(1'111'111'111, 5);
        VyrTests::StampFile(m_scratch.Path(u"from/a"), modified, modified);
        m_tree = TakeSnapshot(m_scratch.Path(u"from"));
        // As if the library had done nothing.
        m_scratch.MakeFolder(u"to");
        EXPECT_TRUE(Finish(action).empty());
        EXPECT_EQ(To(), (TreeSnapshot{{"a", "<folder>"}, {"a/b", "<folder>"}, {"a/b/file", "1"}, {"c", "2"}}));
        EXPECT_EQ(From(), action == TransferAction::Copy ? To() : Missing);
        EXPECT_EQ(m_records.size(), 2u);
        EXPECT_TRUE(CompleteFolders(m_tree, m_records).problems.empty());
        EXPECT_EQ(FileTimes::GetModified(m_scratch.Path(u"to/a")), modified);
        fs::remove_all(ToStdPath(m_scratch.Path(u"to")));
    }
}

TEST_F(FolderTransfer, EntriesRemovedMeanwhileAreReported)
{
    m_scratch.WriteFile(u"from/a", "1");
    m_scratch.WriteFile(u"from/b", "2");
    m_tree = TakeSnapshot(m_scratch.Path(u"from"));
    fs::remove(ToStdPath(m_scratch.Path(u"from/a")));
    ASSERT_EQ(TransferFolder(m_tree, m_scratch.Path(u"to"), TransferAction::Copy, m_records, [](std::size_t) {}), 0u);
    const TransferProblems problems = Finish(TransferAction::Copy);
    EXPECT_EQ(PathsOf(problems, TransferFault::System), Paths{u"a"});
    EXPECT_NE(problems.at(0).error, 0u);
}

TEST_F(FolderTransfer, FileThatGrowsMeanwhileIsCopiedWithItsNewSize)
{
    m_scratch.WriteFile(u"from/a", "1");
    m_tree = TakeSnapshot(m_scratch.Path(u"from"));
    m_scratch.WriteFile(u"from/a", "12345");
    ASSERT_EQ(TransferFolder(m_tree, m_scratch.Path(u"to"), TransferAction::Copy, m_records, [](std::size_t) {}), 0u);
    EXPECT_TRUE(Finish(TransferAction::Copy).empty());
    EXPECT_EQ(To(), (TreeSnapshot{{"a", "12345"}}));
}

TEST_F(FolderTransfer, DifferencesAreReportedAndNotChanged)
{
    m_scratch.WriteFile(u"from/a", "1");
    m_scratch.WriteFile(u"from/b/inner", "2");
    m_scratch.WriteFile(u"from/c", "3");
    Transfer(TransferAction::Copy);
    m_scratch.WriteFile(u"to/a", "cut off");
    fs::remove_all(ToStdPath(m_scratch.Path(u"to/b")));
    m_scratch.WriteFile(u"to/b", "no folder");
    const TransferProblems problems = Finish(TransferAction::Copy);
    ASSERT_EQ(problems.size(), 3u);
    for (const TransferProblem& problem : problems)
        EXPECT_EQ(problem.fault, problem.path.GetLength() == 1 ? TransferFault::Differs : TransferFault::NoFolder);
    EXPECT_EQ(To(), (TreeSnapshot{{"a", "cut off"}, {"b", "no folder"}, {"c", "3"}}));
}

TEST_F(FolderTransfer, EntriesStillAtTheSourceOfAMoveAreReported)
{
    m_scratch.WriteFile(u"from/a", "1");
    m_scratch.WriteFile(u"from/b", "2");
    Transfer(TransferAction::Move);
    m_scratch.WriteFile(u"from/a", "1");
    EXPECT_EQ(PathsOf(Finish(TransferAction::Move), TransferFault::StillAtSource), Paths{u"a"});
    EXPECT_EQ(From(), (TreeSnapshot{{"a", "1"}}));
}

TEST_F(FolderTransfer, SourceOfAMoveThatIsNotEmptyIsReported)
{
    m_scratch.WriteFile(u"from/a", "1");
    Transfer(TransferAction::Move);
    m_scratch.WriteFile(u"from/new", "2");
    const TransferProblems problems = Finish(TransferAction::Move);
    EXPECT_EQ(PathsOf(problems, TransferFault::NotEmpty), Paths{u""});
    EXPECT_EQ(From(), (TreeSnapshot{{"new", "2"}}));
}

TEST_F(FolderTransfer, OnlyTheInnermostFolderThatIsNotEmptyIsReported)
{
    m_scratch.WriteFile(u"from/a/b/c", "1");
    m_scratch.WriteFile(u"from/d", "2");
    Transfer(TransferAction::Move);
    m_scratch.WriteFile(u"from/a/b/new", "3");
    const TransferProblems problems = Finish(TransferAction::Move);
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].fault, TransferFault::NotEmpty);
    EXPECT_EQ(problems[0].path, VyrLibraryUtils::FileUtils::GetCombinePath(u"a", u"b"));
    EXPECT_EQ(From(), (TreeSnapshot{{"a", "<folder>"}, {"a/b", "<folder>"}, {"a/b/new", "3"}}));
}
