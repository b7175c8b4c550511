// Implemented as a main loop whose only event is the timer.
#include <VyrHostPlatform/QueueTimer.h>

#include <VyrPlatform/process/MainLoop.h>

#include <utility>

namespace VyrHostPlatform {

using namespace VyrPlatform;

using Clock = std::chrono::steady_clock;

QueueTimer::QueueTimer(std::chrono::milliseconds interval, std::function<void()> work)
{
    MessageQueue::PlugMainLoop([interval, work = std::move(work), next = Clock::now() + interval]() mutable {
        if (const Clock::time_point now = Clock::now(); now >= next) {
            next = now + interval;
            work();
        }
        return false;
    });
}

QueueTimer::~QueueTimer()
{
    MessageQueue::PlugMainLoop({});
}

} // namespace VyrHostPlatform
