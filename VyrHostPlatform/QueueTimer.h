/// @file
/// Calls a function at intervals while a thread drains its queue.
#pragma once

#include <chrono>
#include <functional>

namespace VyrHostPlatform {

/// While it exists, the drains (MessageQueue.h) of the thread that created it call a function at intervals: a host
/// shows the progress of a long operation so. A thread has one at a time; on Linux it replaces a main loop that is
/// plugged in (LinuxMessageQueue.h). Threads without one pay nothing for it.
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
