// Draining the events of a thread, one at a time.
#include <tests/support/MessagePosting.h>

#include <VyrPlatform/process/MessageQueue.h>

#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <numeric>
#include <thread>
#include <vector>

using VyrPlatform::MessageQueue::DrainOne;
using VyrTests::MessagePosting;

namespace {

/// Runs `test` on a thread of its own with an untouched queue.
template <class Test>
void OnNewThread(Test test)
{
    std::thread(test).join();
}

/// Drains until a stop is returned; the number of drains, or 0 when there was none within `limit`.
int DrainsUntilStop(int limit)
{
    for (int count = 1; count <= limit; ++count) {
        if (DrainOne())
            return count;
    }
    return 0;
}

} // namespace

TEST(MessageQueueTest, IdleThreadGetsNoStop)
{
    OnNewThread([] {
        EXPECT_FALSE(DrainOne());
        const MessagePosting posting;
        EXPECT_FALSE(DrainOne());
    });
}

TEST(MessageQueueTest, EachDrainHandlesOneEvent)
{
    OnNewThread([] {
        const MessagePosting posting;
        int count = 0;
        for (int i = 0; i < 3; ++i)
            posting.PostWork([&] { ++count; });
        EXPECT_EQ(count, 0);
        for (int expected = 1; expected <= 3; ++expected) {
            EXPECT_FALSE(DrainOne());
            EXPECT_EQ(count, expected);
        }
        EXPECT_FALSE(DrainOne());
        EXPECT_EQ(count, 3);
    });
}

TEST(MessageQueueTest, WorkRunsInTheOrderOfItsPosting)
{
    OnNewThread([] {
        const MessagePosting posting;
        std::vector<int> order;
        for (int i = 0; i < 200; ++i)
            posting.PostWork([&order, i] { order.push_back(i); });
        for (int i = 0; i < 200; ++i)
            EXPECT_FALSE(DrainOne());
        std::vector<int> expected(200);
        std::iota(expected.begin(), expected.end(), 0);
        EXPECT_EQ(order, expected);
    });
}

TEST(MessageQueueTest, StopIsToldAfterTheWorkBeforeIt)
{
    OnNewThread([] {
        const MessagePosting posting;
        int count = 0;
        for (int i = 0; i < 5; ++i)
            posting.PostWork([&] { ++count; });
        posting.PostStop();
        EXPECT_EQ(DrainsUntilStop(20), 6);
        EXPECT_EQ(count, 5);
    });
}

TEST(MessageQueueTest, StopIsToldOnce)
{
    OnNewThread([] {
        const MessagePosting posting;
        posting.PostStop();
        EXPECT_TRUE(DrainOne());
        for (int i = 0; i < 10; ++i)
            EXPECT_FALSE(DrainOne());
    });
}

TEST(MessageQueueTest, WorkAfterAStopIsStillDone)
{
    OnNewThread([] {
        const MessagePosting posting;
        bool isDone = false;
        posting.PostStop();
        posting.PostWork([&] { isDone = true; });
        EXPECT_TRUE(DrainOne());
        EXPECT_FALSE(isDone);
        EXPECT_FALSE(DrainOne());
        EXPECT_TRUE(isDone);
    });
}

TEST(MessageQueueTest, StopsPostedSeparatelyAreReturnedSeparately)
{
    OnNewThread([] {
        const MessagePosting posting;
        posting.PostStop();
        EXPECT_TRUE(DrainOne());
        posting.PostStop();
        EXPECT_TRUE(DrainOne());
        EXPECT_FALSE(DrainOne());
    });
}

TEST(MessageQueueTest, WorkMayPostMore)
{
    OnNewThread([] {
        const MessagePosting posting;
        int count = 0;
        posting.PostWork([&] {
            posting.PostWork([&] { ++count; });
            posting.PostStop();
        });
        EXPECT_EQ(DrainsUntilStop(10), 3);
        EXPECT_EQ(count, 1);
    });
}

TEST(MessageQueueTest, WorkMayDrain)
{
    OnNewThread([] {
        const MessagePosting posting;
        std::vector<int> order;
        posting.PostWork([&] {
            order.push_back(1);
            EXPECT_FALSE(DrainOne());
            order.push_back(3);
        });
        posting.PostWork([&] { order.push_back(2); });
        posting.PostWork([&] { order.push_back(4); });
        EXPECT_FALSE(DrainOne());
        EXPECT_FALSE(DrainOne());
        EXPECT_EQ(order, (std::vector<int>{1, 2, 3, 4}));
    });
}

TEST(MessageQueueTest, StopSeenByANestedDrainIsConsumedThere)
{
    OnNewThread([] {
        const MessagePosting posting;
        bool wasTold = false;
        posting.PostWork([&] { wasTold = DrainOne(); });
        posting.PostStop();
        EXPECT_FALSE(DrainOne());
        EXPECT_TRUE(wasTold);
        EXPECT_FALSE(DrainOne());
    });
}

TEST(MessageQueueTest, OtherThreadsMayPost)
{
    OnNewThread([] {
        const MessagePosting posting;
        std::atomic<int> count = 0;
        std::vector<std::thread> posters;
        for (int i = 0; i < 4; ++i) {
            posters.emplace_back([&] {
                for (int work = 0; work < 100; ++work)
                    posting.PostWork([&] { ++count; });
            });
        }
        for (std::thread& poster : posters)
            poster.join();
        posting.PostStop();
        EXPECT_EQ(DrainsUntilStop(1000), 401);
        EXPECT_EQ(count, 400);
    });
}

TEST(MessageQueueTest, EventsOfOneThreadStayItsOwn)
{
    OnNewThread([] {
        const MessagePosting posting;
        const std::thread::id own = std::this_thread::get_id();
        std::thread::id ranOn;
        posting.PostWork([&] { ranOn = std::this_thread::get_id(); });
        posting.PostStop();
        OnNewThread([] {
            for (int i = 0; i < 5; ++i)
                EXPECT_FALSE(DrainOne());
        });
        EXPECT_EQ(DrainsUntilStop(10), 2);
        EXPECT_EQ(ranOn, own);
    });
}

TEST(MessageQueueTest, WorkThatWasNotRunIsReleased)
{
    const auto held = std::make_shared<int>(1);
    OnNewThread([&held] {
        const MessagePosting posting;
        posting.PostWork([held] {});
    });
    EXPECT_EQ(held.use_count(), 1);
}
