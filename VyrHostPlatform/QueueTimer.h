/// @file
/// Calls a function at intervals while a thread drains its queue.
#pragma once

#include <chrono>
#include <functional>

namespace VyrHostPlatform {

/// While it exists, the drains (MessageQueue.h) of the thread that created it call a function at intervals: so a host
/// can show the progress of a long operation. A thread can have one at a time; on Linux it replaces a plugged-in main
/// loop (MainLoop.h). Costs nothing for other threads.
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
