// Makes the test's console, in which Ctrl-C does not end the test.
#include <tests/support/windows/OwnConsole.h>

#include <windows.h>

namespace VyrTests {

namespace {

BOOL WINAPI IgnoreCtrlC(DWORD event)
{
    return event == CTRL_C_EVENT;
}

bool MakeConsole()
{
    DWORD mode = 0;
    return !::GetConsoleMode(::GetStdHandle(STD_OUTPUT_HANDLE), &mode) && ::FreeConsole() && ::AllocConsole() &&
           ::SetConsoleCtrlHandler(IgnoreCtrlC, TRUE);
}

} // namespace

bool HasConsoleOfItsOwn()
{
    static const bool isMade = MakeConsole();
    return isMade;
}

} // namespace VyrTests
