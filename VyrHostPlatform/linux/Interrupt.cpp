// Notes SIGINT, SIGTERM and SIGHUP (the terminal is closed); the program checks for them between two steps.
#include <VyrHostPlatform/Interrupt.h>

#include <atomic>
#include <csignal>

namespace VyrHostPlatform::Interrupt {

namespace {

constinit std::atomic<bool> wasAsked = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may not wait for a lock");

void Note(int signal)
{
    // Both the system and the shell send it when the terminal is closed: the second one is not a second request.
    if (!wasAsked.exchange(true) || signal == SIGHUP)
        return;
    // It is blocked while this handler runs, and ends the program when it returns.
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void CatchSignal(int signal)
{
    struct sigaction previous = {};
    // A program started with the signal ignored (nohup, a shell's background job) keeps ignoring it.
    if (::sigaction(signal, nullptr, &previous) == 0 && previous.sa_handler == SIG_IGN)
        return;
    struct sigaction action = {};
    action.sa_handler = Note;
    // A system call in the middle of the work goes on: the work decides where it stops.
    action.sa_flags = SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    ::sigaction(signal, &action, nullptr);
}

} // namespace

void Catch()
{
    CatchSignal(SIGINT);
    CatchSignal(SIGTERM);
    CatchSignal(SIGHUP);
}

bool WasAsked() noexcept
{
    return wasAsked.load();
}

} // namespace VyrHostPlatform::Interrupt
