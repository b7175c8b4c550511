// A program whose standard streams are a terminal.
#include <tests/support/linux/OnTerminal.h>

#include <gtest/gtest.h>
#include <string>

namespace {

/// The output of the probe about its terminals, on a terminal of `columns` columns.
std::string ProbeOnTerminal(unsigned short columns)
{
    VyrTests::ProgramCall call;
    call.program = VyrTests::BesideThisProgram(u"PlatformProbe");
    call.arguments = {u"terminals"};
    return VyrTests::RunOnTerminal(call, columns).output;
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
