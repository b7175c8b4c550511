#include <tests/support/Signals.h>

#include <windows.h>

namespace VyrTests {

void StopIgnoringInterrupts()
{
    ::SetConsoleCtrlHandler(nullptr, FALSE);
}

} // namespace VyrTests
