#include <tests/support/Signals.h>

#include <csignal>

namespace VyrTests {

void StopIgnoringInterrupts()
{
    for (const int signal : {SIGINT, SIGQUIT, SIGTERM, SIGHUP, SIGPIPE, SIGXFSZ})
        std::signal(signal, SIG_DFL);
}

} // namespace VyrTests
