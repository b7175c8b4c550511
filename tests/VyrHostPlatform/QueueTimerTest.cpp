// Timed work while a thread drains its queue.
#include <VyrHostPlatform/QueueTimer.h>
#include <VyrPlatform/process/MessageQueue.h>

#include <gtest/gtest.h>
#include <tests/support/MessagePosting.h>

#include <chrono>
#include <functional>
#include <thread>

using namespace std::chrono_literals;
using VyrHostPlatform::QueueTimer;
using VyrPlatform::MessageQueue::DrainOne;

namespace {

using Clock = std::chrono::steady_clock;

/// Drains for `time`, with pauses. For work that is not to come.
void DrainFor(std::chrono::milliseconds time)
{
    for (const auto end = Clock::now() + time; Clock::now() < end; std::this_thread::sleep_for(1ms))
        EXPECT_FALSE(DrainOne());
}

/// Drains, with pauses, until the work that is to come has come.
void DrainUntil(const std::function<bool()>& hasCome)
{
    for (; !hasCome(); std::this_thread::sleep_for(1ms))
        EXPECT_FALSE(DrainOne());
}

} // namespace

TEST(QueueTimer, CallsFromDrainsAtMostAtTheInterval)
{
    int calls = 0;
    const auto start = Clock::now();
    const QueueTimer timer(20ms, [&calls] { ++calls; });
    std::this_thread::sleep_for(60ms);
    EXPECT_EQ(calls, 0);
    DrainUntil([&calls] { return calls >= 3; });
    EXPECT_LE(calls, (Clock::now() - start) / 20ms);
}

TEST(QueueTimer, CallsOnlyOnItsOwnThread)
{
    int calls = 0;
    const QueueTimer timer(1ms, [&calls] { ++calls; });
    std::thread([] { DrainFor(30ms); }).join();
    EXPECT_EQ(calls, 0);
    DrainUntil([&calls] { return calls > 0; });
}

TEST(QueueTimer, LeavesOtherEventsAlone)
{
    int posted = 0;
    int calls = 0;
    const VyrTests::MessagePosting posting;
    const QueueTimer timer(1ms, [&calls] { ++calls; });
    for (int count = 0; count < 20; ++count)
        posting.PostWork([&posted] { ++posted; });
    DrainUntil([&] { return posted == 20 && calls > 0; });
    posting.PostStop();
    while (!DrainOne())
        continue;
    EXPECT_EQ(posted, 20);
}

TEST(QueueTimer, CallsNoMoreAfterItsEnd)
{
    int calls = 0;
    {
        const QueueTimer timer(1ms, [&calls] { ++calls; });
        DrainUntil([&calls] { return calls > 0; });
    }
    const int before = calls;
    DrainFor(60ms);
    EXPECT_EQ(calls, before);
    const QueueTimer another(1ms, [&calls] { calls += 100; });
    DrainUntil([&calls, before] { return calls >= before + 100; });
}
