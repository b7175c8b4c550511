// Work that comes up while a thread drains its queue.
#include <VyrHostPlatform/QueueTimer.h>
#include <VyrPlatform/process/MessageQueue.h>

#include <gtest/gtest.h>
#include <tests/support/MessagePosting.h>

#include <chrono>
#include <thread>

using namespace std::chrono_literals;
using VyrHostPlatform::QueueTimer;
using VyrPlatform::MessageQueue::DrainOne;

namespace {

using Clock = std::chrono::steady_clock;

/// Drains for `time`, with pauses.
void DrainFor(std::chrono::milliseconds time)
{
    for (const auto end = Clock::now() + time; Clock::now() < end; std::this_thread::sleep_for(1ms))
        EXPECT_FALSE(DrainOne());
}

} // namespace

TEST(QueueTimer, CallsFromDrainsNotMoreOftenThanAsked)
{
    int calls = 0;
    const auto start = Clock::now();
    const QueueTimer timer(20ms, [&calls] { ++calls; });
    std::this_thread::sleep_for(60ms);
    EXPECT_EQ(calls, 0);
    DrainFor(200ms);
    EXPECT_GE(calls, 1);
    EXPECT_LE(calls, (Clock::now() - start) / 20ms);
}

TEST(QueueTimer, CallsOnItsOwnThreadAlone)
{
    int calls = 0;
    const QueueTimer timer(1ms, [&calls] { ++calls; });
    std::thread([] { DrainFor(30ms); }).join();
    EXPECT_EQ(calls, 0);
    DrainFor(100ms);
    EXPECT_GE(calls, 1);
}

TEST(QueueTimer, LeavesOtherEventsAlone)
{
    int posted = 0;
    int calls = 0;
    const VyrTests::MessagePosting posting;
    const QueueTimer timer(1ms, [&calls] { ++calls; });
    for (int count = 0; count < 20; ++count)
        posting.PostWork([&posted] { ++posted; });
    DrainFor(150ms);
    EXPECT_EQ(posted, 20);
    EXPECT_GE(calls, 1);
    posting.PostStop();
    bool isStopped = false;
    for (const auto end = Clock::now() + 5s; !isStopped && Clock::now() < end;)
        isStopped = DrainOne();
    EXPECT_TRUE(isStopped);
}

TEST(QueueTimer, CallsNoMoreAfterItsEnd)
{
    int calls = 0;
    {
        const QueueTimer timer(1ms, [&calls] { ++calls; });
        DrainFor(60ms);
        EXPECT_GE(calls, 1);
    }
    const int before = calls;
    DrainFor(60ms);
    EXPECT_EQ(calls, before);
    const QueueTimer another(1ms, [&calls] { calls += 100; });
    DrainFor(60ms);
    EXPECT_GE(calls, before + 100);
}
