// The queue of a thread on Linux, in place of a Windows message queue.
#include <VyrPlatform/process/LinuxMessageQueue.h>
#include <VyrPlatform/process/MainLoop.h>
#include <VyrPlatform/process/MessageQueue.h>

#include <atomic>
#include <deque>
#include <mutex>
#include <utility>

namespace VyrPlatform::MessageQueue {

namespace {

struct Event
{
    std::function<void()> work;
    bool isStop = false;
};

} // namespace

struct Poster::Queue
{
    /// Adds `event`; one for a thread that has ended is dropped.
    void Add(Event event);
    /// Removes and handles the oldest event; true for a stop. Call it only while an event is waiting.
    bool HandleOldest();
    bool RunMainLoop() const;
    /// Drops all waiting and later events.
    void Close();

    /// Lets a drain find out without the lock that there is nothing to do.
    std::atomic<bool> isWaiting = false;
    /// Used only by the queue's own thread.
    std::shared_ptr<const MainLoopPass> mainLoop;

private:
    std::mutex m_mutex;
    std::deque<Event> m_events;
    bool m_isClosed = false;
};

void Poster::Queue::Add(Event event)
{
    const std::lock_guard lock(m_mutex);
    if (m_isClosed)
        return;
    m_events.push_back(std::move(event));
    isWaiting.store(true, std::memory_order_release);
}

bool Poster::Queue::HandleOldest()
{
    Event event;
    {
        const std::lock_guard lock(m_mutex);
        event = std::move(m_events.front());
        m_events.pop_front();
        isWaiting.store(!m_events.empty(), std::memory_order_release);
    }
    // Outside the lock: the work may post, and may drain again.
    if (event.work)
        event.work();
    return event.isStop;
}

bool Poster::Queue::RunMainLoop() const
{
    // The pass may unplug itself.
    const std::shared_ptr<const MainLoopPass> running = mainLoop;
    return running && (*running)();
}

void Poster::Queue::Close()
{
    std::deque<Event> dropped;
    const std::lock_guard lock(m_mutex);
    m_isClosed = true;
    isWaiting.store(false, std::memory_order_release);
    m_events.swap(dropped);
}

/// Gives access to the private parts of a Poster.
struct QueueAccess
{
    using Queue = Poster::Queue;

    static Poster MakePoster(std::shared_ptr<Queue> queue) { return Poster(std::move(queue)); }
};

namespace {

using Queue = QueueAccess::Queue;

/// The calling thread's queue; null until it has one, and again while the thread ends. In the initial-exec model a
/// drain of a thread without a queue costs one load, even from a shared library.
[[gnu::tls_model("initial-exec")]] constinit thread_local Queue* threadQueue = nullptr;
[[gnu::tls_model("initial-exec")]] constinit thread_local bool hasThreadEnded = false;

/// Keeps a thread's queue until the thread ends.
class Owner
{
public:
    Owner() : m_queue(std::make_shared<Queue>()) { threadQueue = m_queue.get(); }
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;
    ~Owner()
    {
        threadQueue = nullptr;
        hasThreadEnded = true;
        m_queue->mainLoop.reset();
        m_queue->Close();
    }

    [[nodiscard]] const std::shared_ptr<Queue>& Get() const noexcept { return m_queue; }

private:
    std::shared_ptr<Queue> m_queue;
};

std::shared_ptr<Queue> CallingThreadsQueue()
{
    if (hasThreadEnded) {
        auto closed = std::make_shared<Queue>();
        closed->Close();
        return closed;
    }
    thread_local const Owner owner;
    return owner.Get();
}

} // namespace

Poster::Poster(std::shared_ptr<Queue> queue) : m_queue(std::move(queue)) {}

Poster Poster::ForCallingThread()
{
    return QueueAccess::MakePoster(CallingThreadsQueue());
}

void Poster::Post(std::function<void()> work) const
{
    m_queue->Add({std::move(work), false});
}

void Poster::PostStop() const
{
    m_queue->Add({{}, true});
}

void PlugMainLoop(MainLoopPass pass)
{
    std::shared_ptr<const MainLoopPass> plugged;
    if (pass)
        plugged = std::make_shared<const MainLoopPass>(std::move(pass));
    CallingThreadsQueue()->mainLoop = std::move(plugged);
}

bool DrainOne()
{
    Queue* const queue = threadQueue;
    if (!queue) [[likely]]
        return false;
    if (queue->isWaiting.load(std::memory_order_acquire))
        return queue->HandleOldest();
    return queue->mainLoop && queue->RunMainLoop();
}

} // namespace VyrPlatform::MessageQueue
