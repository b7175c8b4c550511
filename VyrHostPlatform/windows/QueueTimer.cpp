// Timed work through the timer messages of a thread's queue.
#include <VyrHostPlatform/QueueTimer.h>

#include <utility>
#include <windows.h>

namespace VyrHostPlatform {

namespace {

/// The function of the calling thread's timer: the system passes only the number of the timer.
thread_local std::function<void()> threadWork;
thread_local UINT_PTR threadTimer = 0;

void CALLBACK CallWork(HWND, UINT, UINT_PTR, DWORD)
{
    if (threadWork)
        threadWork();
}

} // namespace

QueueTimer::QueueTimer(std::chrono::milliseconds interval, std::function<void()> work)
{
    threadWork = std::move(work);
    threadTimer = ::SetTimer(nullptr, 0, static_cast<UINT>(interval.count()), CallWork);
}

QueueTimer::~QueueTimer()
{
    ::KillTimer(nullptr, threadTimer);
    threadWork = nullptr;
}

} // namespace VyrHostPlatform
