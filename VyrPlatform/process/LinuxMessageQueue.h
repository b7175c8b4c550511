/// @file
/// For hosts on Linux: puts events into the queue that MessageQueue::DrainOne handles.
///
/// A Windows host uses its system's own message functions and needs none of this.
#pragma once

#include <VyrPlatform/Export.h>

#include <functional>
#include <memory>

namespace VyrPlatform::MessageQueue {

/// The queue of one thread, into which other threads post. It lives as long as an object refers to it, also after its
/// thread. Events that wait when the thread ends, and later ones, are dropped.
class VYR_PLATFORM_API Poster
{
public:
    /// The calling thread's queue.
    [[nodiscard]] static Poster ForCallingThread();

    /// Adds `work`, to be run by a drain on the queue's own thread; an empty function does nothing there. Any thread
    /// may call this. The work may post and drain. An exception of the work leaves the drain that runs it; the work
    /// after it stays in the queue.
    void Post(std::function<void()> work) const;
    /// Requests the queue's thread to stop, after the work posted before.
    void PostStop() const;

private:
    struct Queue;
    explicit Poster(std::shared_ptr<Queue> queue);
    friend struct QueueAccess;
    std::shared_ptr<Queue> m_queue;
};

} // namespace VyrPlatform::MessageQueue
