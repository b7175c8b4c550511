// Events from the poster and from a host's own main loop.
#include <VyrPlatform/process/LinuxMessageQueue.h>
#include <VyrPlatform/process/MainLoop.h>
#include <VyrPlatform/process/MessageQueue.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <poll.h>
#include <stdexcept>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace VyrPlatform::MessageQueue;

namespace {

template <class Test>
void OnNewThread(Test test)
{
    std::thread(test).join();
}

/// A main loop around poll, for a host without a toolkit: its events are numbers from a pipe.
class PollLoop
{
public:
    static constexpr int stop = -1;

    PollLoop()
    {
        if (::pipe(m_ends) != 0)
            throw std::runtime_error("no pipe");
    }
    PollLoop(const PollLoop&) = delete;
    PollLoop& operator=(const PollLoop&) = delete;
    ~PollLoop()
    {
        ::close(m_ends[0]);
        ::close(m_ends[1]);
    }

    /// Any thread may call this.
    void Send(int number) const
    {
        ASSERT_EQ(::write(m_ends[1], &number, sizeof number), static_cast<ssize_t>(sizeof number));
    }

    /// Handles one number that has come, without waiting for one; true when it was the stop.
    bool Pass()
    {
        pollfd source{m_ends[0], POLLIN, 0};
        if (::poll(&source, 1, 0) != 1)
            return false;
        int number = 0;
        if (::read(m_ends[0], &number, sizeof number) != static_cast<ssize_t>(sizeof number))
            throw std::runtime_error("a cut number");
        if (number == stop)
            return true;
        received.push_back(number);
        return false;
    }

    std::vector<int> received;

private:
    int m_ends[2];
};

} // namespace

TEST(PlugMainLoopTest, TenThousandItemsOfAnotherThreadArriveInOrderBeforeTheStop)
{
    OnNewThread([] {
        constexpr int itemCount = 10000;
        PollLoop loop;
        PlugMainLoop([&] { return loop.Pass(); });
        std::vector<int> posted;
        std::thread sender([&, poster = Poster::ForCallingThread()] {
            for (int i = 0; i < itemCount; ++i) {
                if (i % 2 == 0)
                    poster.Post([&posted, i] { posted.push_back(i); });
                else
                    loop.Send(i);
            }
            loop.Send(PollLoop::stop);
        });
        while (!DrainOne())
            ;
        sender.join();
        PlugMainLoop({});
        ASSERT_EQ(posted.size() + loop.received.size(), static_cast<std::size_t>(itemCount));
        for (int i = 0; i < itemCount / 2; ++i) {
            ASSERT_EQ(posted[static_cast<std::size_t>(i)], 2 * i);
            ASSERT_EQ(loop.received[static_cast<std::size_t>(i)], 2 * i + 1);
        }
    });
}

TEST(PlugMainLoopTest, TenThousandPostedItemsArriveWhileTheLoopRuns)
{
    OnNewThread([] {
        PollLoop loop;
        PlugMainLoop([&] { return loop.Pass(); });
        int next = 0;
        std::thread sender([&next, poster = Poster::ForCallingThread()] {
            for (int i = 0; i < 10000; ++i)
                poster.Post([&next, i] { next += next == i ? 1 : 0; });
            poster.PostStop();
        });
        while (!DrainOne())
            ;
        EXPECT_EQ(next, 10000);
        EXPECT_FALSE(DrainOne());
        sender.join();
    });
}

TEST(PlugMainLoopTest, PostedWorkRunsBeforeTheLoop)
{
    OnNewThread([] {
        std::vector<int> order;
        PlugMainLoop([&] {
            order.push_back(0);
            return false;
        });
        const Poster poster = Poster::ForCallingThread();
        poster.Post([&] { order.push_back(1); });
        EXPECT_FALSE(DrainOne());
        EXPECT_FALSE(DrainOne());
        EXPECT_EQ(order, (std::vector<int>{1, 0}));
    });
}

TEST(PlugMainLoopTest, LoopReturnsAStopForItsEvent)
{
    OnNewThread([] {
        int passes = 0;
        PlugMainLoop([&] { return ++passes == 2; });
        EXPECT_FALSE(DrainOne());
        EXPECT_TRUE(DrainOne());
        EXPECT_FALSE(DrainOne());
        EXPECT_EQ(passes, 3);
    });
}

TEST(PlugMainLoopTest, LoopMayUnplugAndReplaceItself)
{
    OnNewThread([] {
        const auto held = std::make_shared<int>(1);
        int second = 0;
        PlugMainLoop([&, held] {
            PlugMainLoop([&] { return ++second == 0; });
            return *held == 2;
        });
        EXPECT_FALSE(DrainOne());
        EXPECT_EQ(held.use_count(), 1);
        EXPECT_FALSE(DrainOne());
        EXPECT_EQ(second, 1);
        PlugMainLoop({});
        EXPECT_FALSE(DrainOne());
        EXPECT_EQ(second, 1);
    });
}

TEST(PlugMainLoopTest, WorkThatTheLoopStartsMayDrain)
{
    OnNewThread([] {
        PollLoop loop;
        int depth = 0;
        std::vector<bool> nested;
        PlugMainLoop([&] {
            if (++depth < 3) {
                const bool isStop = DrainOne();
                nested.push_back(isStop);
            }
            return loop.Pass();
        });
        loop.Send(PollLoop::stop);
        // The innermost pass takes the stop; the outer ones find nothing.
        EXPECT_FALSE(DrainOne());
        EXPECT_EQ(nested, (std::vector<bool>{true, false}));
    });
}

TEST(PlugMainLoopTest, ExceptionOfWorkReachesTheDrainAndTheRestStays)
{
    OnNewThread([] {
        const Poster poster = Poster::ForCallingThread();
        bool isDone = false;
        poster.Post([] { throw std::runtime_error("work"); });
        poster.Post([&] { isDone = true; });
        EXPECT_THROW((void)DrainOne(), std::runtime_error);
        EXPECT_FALSE(isDone);
        EXPECT_FALSE(DrainOne());
        EXPECT_TRUE(isDone);
    });
}

TEST(PlugMainLoopTest, EmptyWorkIsAnEventThatDoesNothing)
{
    OnNewThread([] {
        const Poster poster = Poster::ForCallingThread();
        poster.Post({});
        poster.PostStop();
        EXPECT_FALSE(DrainOne());
        EXPECT_TRUE(DrainOne());
    });
}

TEST(PlugMainLoopTest, PosterOutlivesItsThreadAndDropsLaterEvents)
{
    std::optional<Poster> poster;
    OnNewThread([&] { poster = Poster::ForCallingThread(); });
    const auto held = std::make_shared<int>(1);
    poster->Post([held] {});
    poster->PostStop();
    EXPECT_EQ(held.use_count(), 1);
}

TEST(PlugMainLoopTest, PostingWhileTheThreadEndsIsSafe)
{
    for (int round = 0; round < 200; ++round) {
        std::atomic<bool> mayPost = false;
        std::atomic<bool> isPosting = true;
        std::optional<Poster> poster;
        std::thread receiver([&] {
            poster = Poster::ForCallingThread();
            mayPost = true;
        });
        const auto held = std::make_shared<int>(1);
        std::thread sender([&] {
            while (!mayPost)
                std::this_thread::yield();
            for (int i = 0; i < 50; ++i)
                poster->Post([held] {});
            isPosting = false;
        });
        receiver.join();
        sender.join();
        ASSERT_FALSE(isPosting);
        ASSERT_EQ(held.use_count(), 1);
    }
}

TEST(PlugMainLoopTest, ThreadThatIsEndingMayStillDrainAndAskForAPoster)
{
    struct Late
    {
        ~Late()
        {
            *wasStopped = DrainOne();
            const Poster poster = Poster::ForCallingThread();
            poster.PostStop();
            *wasStopped = *wasStopped || DrainOne();
        }
        bool* wasStopped = nullptr;
    };
    bool wasStopped = true;
    OnNewThread([&] {
        // Made before the queue, so it ends after it.
        thread_local Late late;
        late.wasStopped = &wasStopped;
        Poster::ForCallingThread().PostStop();
    });
    EXPECT_FALSE(wasStopped);
}
