// Notes Ctrl-C, Ctrl-Break and the closing of the console; the program checks for them between two steps.
#include <VyrHostPlatform/Interrupt.h>

#include <atomic>
#include <windows.h>

namespace VyrHostPlatform::Interrupt {

namespace {

constinit std::atomic<bool> wasAsked = false;

BOOL WINAPI Note(DWORD event)
{
    const bool askedBefore = wasAsked.exchange(true);
    if (event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT)
        return askedBefore ? FALSE : TRUE;
    // The console is closed or the user logs off: Windows ends the program when this handler returns, at the latest
    // after some seconds. Until then the work may finish, which ends this thread too.
    ::Sleep(INFINITE);
    return TRUE;
}

} // namespace

void Catch()
{
    ::SetConsoleCtrlHandler(Note, TRUE);
}

bool WasAsked() noexcept
{
    return wasAsked.load();
}

} // namespace VyrHostPlatform::Interrupt
