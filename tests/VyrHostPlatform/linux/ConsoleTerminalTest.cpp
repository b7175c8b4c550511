// A program whose standard streams are a terminal.
#include <VyrPlatform/text/Encoding.h>
#include <tests/support/ChildProcess.h>

#include <gtest/gtest.h>
#include <pty.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// What the probe, asked about its terminals, writes to a terminal of `columns` columns.
std::string ProbeOnTerminal(unsigned short columns)
{
    const std::string program = VyrPlatform::Encoding::ToNameBytes(VyrTests::BesideThisProgram(u"PlatformProbe"));
    const winsize size{25, columns, 0, 0};
    int terminal = -1;
    const pid_t child = ::forkpty(&terminal, nullptr, nullptr, &size);
    if (child == 0) {
        ::execl(program.c_str(), program.c_str(), "terminals", static_cast<char*>(nullptr));
        ::_exit(127);
    }
    std::string written;
    char bytes[256];
    // A terminal whose last program has ended gives an error, not an end.
    for (ssize_t count = 0; (count = ::read(terminal, bytes, sizeof bytes)) > 0;)
        written.append(bytes, static_cast<std::size_t>(count));
    ::waitpid(child, nullptr, 0);
    ::close(terminal);
    return written;
}

} // namespace

TEST(ConsoleTerminalTest, TerminalIsKnownWithItsWidth)
{
    EXPECT_EQ(ProbeOnTerminal(132), "1 1 1 132\r\n");
    EXPECT_EQ(ProbeOnTerminal(20), "1 1 1 20\r\n");
}

TEST(ConsoleTerminalTest, TerminalThatDoesNotKnowItsWidthHas80Columns)
{
    EXPECT_EQ(ProbeOnTerminal(0), "1 1 1 80\r\n");
}
