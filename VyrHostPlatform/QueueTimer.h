/// @file
/// Work that comes up from time to time while a thread drains its queue.
#pragma once

#include <chrono>
#include <functional>

namespace VyrHostPlatform {

/// Has the drains of the thread that made it (MessageQueue.h) call a function from time to time, as long as it lives: a
/// host's way to show how far a library's long operation is. A thread has one at a time; on Linux it takes the place of
/// a main loop that is plugged in (LinuxMessageQueue.h). Threads without one pay nothing for it.
class QueueTimer
{
public:
    /// @param interval  the least time between two calls; a call waits for the next drain.
    /// @param work  must not drain, and no exception may leave it.
    QueueTimer(std::chrono::milliseconds interval, std::function<void()> work);
    QueueTimer(const QueueTimer&) = delete;
    QueueTimer& operator=(const QueueTimer&) = delete;
    ~QueueTimer();
};

} // namespace VyrHostPlatform
