// The signals that ask a Linux program to end.
#include <tests/support/ChildProcess.h>

#include <VyrHostPlatform/Interrupt.h>

#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace VyrHostPlatform;

namespace {

/// Catches, sends itself `first` and then `second`, and leaves with 7 when it is still there.
[[noreturn]] void CatchAndRaise(int first, int second)
{
    Interrupt::Catch();
    std::raise(first);
    if (!Interrupt::WasAsked())
        ::_exit(1);
    std::raise(second);
    ::_exit(7);
}

} // namespace

TEST(InterruptSignalTest, EveryPairOfSignalsEndsTheProgramByTheSecond)
{
    EXPECT_EXIT(CatchAndRaise(SIGINT, SIGINT), testing::KilledBySignal(SIGINT), "");
    EXPECT_EXIT(CatchAndRaise(SIGTERM, SIGTERM), testing::KilledBySignal(SIGTERM), "");
    EXPECT_EXIT(CatchAndRaise(SIGINT, SIGTERM), testing::KilledBySignal(SIGTERM), "");
    EXPECT_EXIT(CatchAndRaise(SIGTERM, SIGINT), testing::KilledBySignal(SIGINT), "");
    EXPECT_EXIT(CatchAndRaise(SIGHUP, SIGTERM), testing::KilledBySignal(SIGTERM), "");
}

TEST(InterruptSignalTest, ClosedTerminalIsNotedHoweverOftenItIsTold)
{
    EXPECT_EXIT(CatchAndRaise(SIGHUP, SIGHUP), testing::ExitedWithCode(7), "");
    EXPECT_EXIT(CatchAndRaise(SIGINT, SIGHUP), testing::ExitedWithCode(7), "");
}

TEST(InterruptSignalTest, SignalThatWasIgnoredAtTheStartStaysIgnored)
{
    const auto catchIgnored = [] {
        std::signal(SIGINT, SIG_IGN);
        Interrupt::Catch();
        std::raise(SIGINT);
        ::_exit(Interrupt::WasAsked() ? 1 : 0);
    };
    EXPECT_EXIT(catchIgnored(), testing::ExitedWithCode(0), "");
}

TEST(InterruptSignalTest, InterruptEndsAWaitForInput)
{
    VyrTests::ChildProcess child({.program = VyrTests::BesideThisProgram(u"PlatformProbe"),
                                  .arguments = {u"interrupted-input"},
                                  .staysInputOpen = true});
    ASSERT_TRUE(child.WaitForOutput("ready"));
    // The program may not be waiting yet; an interrupt before that is seen all the same.
    child.Interrupt();
    EXPECT_EQ(child.Wait().exitCode, 0);
}
