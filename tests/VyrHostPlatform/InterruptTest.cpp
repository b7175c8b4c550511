// The first interrupt is noted, the second one ends the program.
#include <tests/support/ChildProcess.h>

#include <VyrHostPlatform/Interrupt.h>

#include <gtest/gtest.h>

using VyrTests::BesideThisProgram;
using VyrTests::ChildProcess;

TEST(InterruptTest, WasNotAskedBeforeAnInterrupt)
{
    EXPECT_FALSE(VyrHostPlatform::Interrupt::WasAsked());
}

TEST(InterruptTest, FirstIsNotedSecondEndsTheProgram)
{
    ChildProcess child({BesideThisProgram(u"PlatformProbe"), {u"interrupt"}});
    ASSERT_TRUE(child.WaitForOutput("ready"));
    child.Interrupt();
    ASSERT_TRUE(child.WaitForOutput("asked"));
    child.Interrupt();
    // Without an interrupt it would never end.
    EXPECT_EQ(child.Wait().output, "ready\nasked\n");
}

TEST(InterruptTest, ProgramThatDoesNotCatchItEnds)
{
    ChildProcess child({.program = BesideThisProgram(u"PlatformProbe"),
                        .arguments = {u"copy"},
                        .input = "waiting",
                        .staysInputOpen = true});
    ASSERT_TRUE(child.WaitForOutput("waiting"));
    child.Interrupt();
    // Without input to come, only the interrupt can end it; a wait in vain fails the test.
    EXPECT_EQ(child.Wait().output, "waiting");
}
