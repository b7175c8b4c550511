// Several folders in one call, and a stop in the middle of one.
#include "Snapshot.h"

#include <VyrHost/foldercopy/TransferBatch.h>
#include <tests/support/MessagePosting.h>
#include <tests/support/ScratchFolder.h>

#include <gmock/gmock.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <thread>

using namespace VyrHost::FolderCopy;
using testing::ElementsAre;
using testing::Field;
using VyrHost::Model::Status;
using VyrTests::SnapshotOf;
using VyrTests::TreeSnapshot;

namespace {

/// Requests a stop during the walk through a tree, as soon as some of its files are at the target.
class StoppingWatch final : public TransferWatch
{
public:
    StoppingWatch(const CString& target, std::size_t arrived) : m_target(target), m_arrived(arrived) { PostLook(); }
    StoppingWatch(const StoppingWatch&) = delete;
    StoppingWatch& operator=(const StoppingWatch&) = delete;

    bool IsStopAsked() override { return m_isAsked; }
    void Begin(const TransferTask& task, std::size_t) override { begun.push_back(task.source); }
    void Show(std::size_t) override { shownAfterStop += m_isAsked; }
    void End() override { ++ended; }

    std::vector<CString> begun;
    std::size_t ended = 0;
    /// The target when the stop was requested.
    TreeSnapshot then;
    std::size_t shownAfterStop = 0;

private:
    /// The walk drains the thread's queue at each entry. The last work may be in the queue longer than this object
    /// lives.
    void PostLook()
    {
        m_posting.PostWork([self = std::weak_ptr(m_self)] {
            if (const auto watch = self.lock())
                (*watch)->Look();
        });
    }
    void Look()
    {
        then = SnapshotOf(m_target);
        if (then.size() < m_arrived || then.contains("missing")) {
            PostLook();
            return;
        }
        m_isAsked = true;
        // Longer than the interval of progress.
        std::this_thread::sleep_for(std::chrono::milliseconds(250));
    }

    const CString m_target;
    const std::size_t m_arrived;
    bool m_isAsked = false;
    VyrTests::MessagePosting m_posting;
    std::shared_ptr<StoppingWatch*> m_self = std::make_shared<StoppingWatch*>(this);
};

class TransferBatchTest : public testing::TestWithParam<TransferAction>
{
protected:
    TransferBatchTest()
    {
        for (const char16_t* const name :
             {u"one/a", u"one/b", u"one/sub/c", u"one/sub/d", u"one/e", u"two/f", u"three/g"})
            m_scratch.WriteFile(name, "content");
        m_scratch.MakeFolder(u"to");
    }
    [[nodiscard]] std::vector<CString> Paths(const std::vector<CString>& names) const
    {
        std::vector<CString> paths;
        for (const CString& name : names)
            paths.push_back(m_scratch.Path(name));
        return paths;
    }
    [[nodiscard]] TreeSnapshot At(std::u16string_view name) const { return SnapshotOf(m_scratch.Path(name)); }

    const VyrTests::ScratchFolder m_scratch;
};

const TreeSnapshot Missing = {{"missing", ""}};

std::vector<Status> StatusesOf(const TransferBatch& batch)
{
    std::vector<Status> statuses;
    for (const TransferReport& report : batch.Reports()) {
        EXPECT_TRUE(report.problems.empty());
        statuses.push_back(report.status);
    }
    return statuses;
}

} // namespace

TEST_P(TransferBatchTest, StopInAFolderFinishesItAndBeginsNoOther)
{
    const TreeSnapshot one = At(u"one");
    const TreeSnapshot two = At(u"two");
    TransferBatch batch(Paths({u"one", u"two", u"three"}), m_scratch.Path(u"to"), GetParam(), Trial::Allowed);
    ASSERT_FALSE(batch.IsRefused());
    StoppingWatch watch(m_scratch.Path(u"to/one"), 2);
    batch.Apply(watch);

    EXPECT_TRUE(batch.WasStopped());
    EXPECT_THAT(StatusesOf(batch), ElementsAre(Status::Done, Status::NotReached, Status::NotReached));
    EXPECT_THAT(watch.begun, ElementsAre(m_scratch.Path(u"one")));
    EXPECT_EQ(watch.ended, 1u);
    EXPECT_GE(watch.shownAfterStop, 1u);
    // The stop came in the middle, and no file is incomplete.
    EXPECT_GE(watch.then.size(), 2u);
    EXPECT_LT(watch.then.size(), one.size());
    EXPECT_EQ(At(u"to/one"), one);
    EXPECT_EQ(At(u"one"), GetParam() == TransferAction::Copy ? one : Missing);
    EXPECT_EQ(At(u"two"), two);
    EXPECT_EQ(At(u"to/two"), Missing);
    EXPECT_EQ(At(u"to/three"), Missing);
}

TEST_P(TransferBatchTest, StopInTheLastFolderLeavesNothingUndone)
{
    const TreeSnapshot one = At(u"one");
    TransferBatch batch(Paths({u"two", u"one"}), m_scratch.Path(u"to"), GetParam(), Trial::Allowed);
    StoppingWatch watch(m_scratch.Path(u"to/one"), 2);
    batch.Apply(watch);
    EXPECT_TRUE(watch.IsStopAsked());
    EXPECT_FALSE(batch.WasStopped());
    EXPECT_THAT(StatusesOf(batch), ElementsAre(Status::Done, Status::Done));
    EXPECT_EQ(At(u"to/one"), one);
    EXPECT_EQ(watch.ended, 2u);
}

TEST_P(TransferBatchTest, NextCallDoesTheFoldersNotReached)
{
    {
        TransferBatch batch(Paths({u"one", u"two", u"three"}), m_scratch.Path(u"to"), GetParam(), Trial::Allowed);
        StoppingWatch watch(m_scratch.Path(u"to/one"), 1);
        batch.Apply(watch);
        ASSERT_TRUE(batch.WasStopped());
    }
    const TreeSnapshot two = At(u"two");
    TransferBatch rest(Paths({u"two", u"three"}), m_scratch.Path(u"to"), GetParam(), Trial::Allowed);
    StoppingWatch never(m_scratch.Path(u"nowhere"), 1);
    rest.Apply(never);
    EXPECT_THAT(StatusesOf(rest), ElementsAre(Status::Done, Status::Done));
    EXPECT_EQ(At(u"to/two"), two);
    EXPECT_EQ(At(u"to/three").size(), 1u);
}

TEST_P(TransferBatchTest, RefusesAllForOneConflictAndChangesNothing)
{
    m_scratch.WriteFile(u"to/two/f", "old");
    TransferBatch batch(Paths({u"one", u"two"}), m_scratch.Path(u"to"), GetParam(), Trial::Allowed);
    EXPECT_TRUE(batch.IsRefused());
    EXPECT_THAT(batch.Reports(), ElementsAre(Field(&TransferReport::status, Status::NotReached),
                                             Field(&TransferReport::status, Status::Refused)));
    StoppingWatch watch(m_scratch.Path(u"nowhere"), 1);
    batch.Apply(watch);
    EXPECT_TRUE(watch.begun.empty());
    EXPECT_EQ(At(u"to/one"), Missing);
    EXPECT_EQ(m_scratch.ReadFile(u"to/two/f"), "old");
}

INSTANTIATE_TEST_SUITE_P(Transfers, TransferBatchTest, testing::Values(TransferAction::Copy, TransferAction::Move),
                         [](const auto& action) { return action.param == TransferAction::Copy ? "Copy" : "Move"; });
