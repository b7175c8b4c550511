// Folders that the user may not change are found before anything is copied or moved.
#include <VyrHost/foldercopy/TransferBatch.h>

#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>
#include <tests/support/linux/Unprivileged.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>
#include <vector>

using namespace VyrHost::FolderCopy;
using VyrTests::ScratchFolder;
using VyrTests::ToStdPath;
using VyrTests::Unprivileged;

namespace {

using Problem = std::tuple<CString, TransferFault, std::uint32_t>;

std::vector<Problem> ProblemsOf(const TransferProblems& problems)
{
    std::vector<Problem> rows;
    for (const TransferProblem& problem : problems)
        rows.emplace_back(problem.path, problem.fault, problem.error);
    return rows;
}

class TransferPermission : public testing::Test
{
protected:
    void SetUp() override
    {
        if (geteuid() != 0)
            GTEST_SKIP() << "only root can take the rights of another user";
        m_scratch.WriteFile(u"from/a/file");
        m_scratch.WriteFile(u"from/b/file");
        m_scratch.MakeFolder(u"to");
        for (const char16_t* const name : {u"", u"from", u"from/a", u"from/b", u"to"})
            SetMode(name, 0777);
    }

    void SetMode(const CString& name, mode_t mode) const
    {
        ASSERT_EQ(chmod(ToStdPath(m_scratch.Path(name)).c_str(), mode), 0);
    }

    [[nodiscard]] std::vector<Problem> ConflictsAt(const CString& target) const
    {
        const Unprivileged user;
        const FolderSnapshot tree = TakeSnapshot(m_scratch.Path(u"from"));
        return ProblemsOf(CheckTarget(tree, m_scratch.Path(target), Trial::No).conflicts);
    }

    [[nodiscard]] std::vector<Problem> Staying() const
    {
        const Unprivileged user;
        return ProblemsOf(CheckLeaving(TakeSnapshot(m_scratch.Path(u"from"))));
    }

    const ScratchFolder m_scratch;
};

} // namespace

TEST_F(TransferPermission, FolderThatTakesNoNewTreeIsNamed)
{
    SetMode(u"to", 0555);
    EXPECT_EQ(ConflictsAt(u"to/new"), (std::vector<Problem>{{u"", TransferFault::TargetLocked, EACCES}}));
}

TEST_F(TransferPermission, MergedFolderIsAskedOnlyWhereItGetsSomethingNew)
{
    m_scratch.MakeFolder(u"to/b");
    SetMode(u"to/b", 0777);
    m_scratch.MakeFolder(u"to/a");
    SetMode(u"to/a", 0555);
    SetMode(u"to", 0555);
    EXPECT_EQ(ConflictsAt(u"to"), (std::vector<Problem>{{u"a", TransferFault::TargetLocked, EACCES}}));
}

TEST_F(TransferPermission, NothingLeavesAFolderThatMayNotBeChanged)
{
    EXPECT_EQ(Staying(), std::vector<Problem>());
    SetMode(u"from/b", 0555);
    EXPECT_EQ(Staying(), (std::vector<Problem>{{u"b", TransferFault::SourceLocked, EACCES}}));
    SetMode(u"", 0555);
    EXPECT_EQ(Staying(), (std::vector<Problem>{{u"", TransferFault::RootLocked, EACCES},
                                               {u"b", TransferFault::SourceLocked, EACCES}}));
}

TEST_F(TransferPermission, EntriesOfOthersDoNotLeaveAStickyFolder)
{
    SetMode(u"from/a", 01777);
    {
        const Unprivileged user;
        m_scratch.WriteFile(u"from/a/own");
    }
    EXPECT_EQ(Staying(), (std::vector<Problem>{{u"a/file", TransferFault::NotOwnEntry, 0}}));
    SetMode(u"", 01777);
    EXPECT_EQ(Staying(),
              (std::vector<Problem>{{u"", TransferFault::NotOwnEntry, 0}, {u"a/file", TransferFault::NotOwnEntry, 0}}));
}

TEST_F(TransferPermission, MoveThatCannotBeFinishedIsNotBegunAndACopyIs)
{
    SetMode(u"from/b", 0555);
    const Unprivileged user;
    const std::vector<CString> sources = {m_scratch.Path(u"from")};
    const CString target = m_scratch.Path(u"to");
    EXPECT_TRUE(TransferBatch(sources, target, TransferAction::Move, Trial::No).IsRefused());
    EXPECT_FALSE(TransferBatch(sources, target, TransferAction::Copy, Trial::No).IsRefused());
}
