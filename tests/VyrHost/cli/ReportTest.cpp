// The exit code that the end of a batch asks for.
#include <VyrHost/cli/Report.h>

#include <VyrHost/cli/ExitCode.h>

#include <gtest/gtest.h>

using namespace VyrHost::Batch;
using namespace VyrHost::Cli;

namespace {

BatchSummary SummaryOfBatch(std::uint32_t number, std::size_t done)
{
    BatchSummary summary;
    summary.number = number;
    summary.done = done;
    return summary;
}

} // namespace

TEST(JudgeSummary, IsSuccessWhereAllIsDone)
{
    EXPECT_EQ(JudgeSummary(SummaryOfBatch(1, 3)), ExitCode::Success);
}

TEST(JudgeSummary, IsBlockedWhereNothingWasBegun)
{
    BatchSummary summary = SummaryOfBatch(0, 0);
    summary.notReached = 3;
    summary.error = u"another batch of renames is being worked on";
    EXPECT_EQ(JudgeSummary(summary), ExitCode::Blocked);
}

TEST(JudgeSummary, IsPartlyWhereEveryEntryFailsThoughNoBatchIsLeft)
{
    BatchSummary summary = SummaryOfBatch(0, 0);
    summary.failed = 3;
    EXPECT_EQ(JudgeSummary(summary), ExitCode::Partly);
}

TEST(JudgeSummary, IsInterruptedWhereItWasStoppedBeforeTheFirstEntry)
{
    BatchSummary summary = SummaryOfBatch(0, 0);
    summary.notReached = 3;
    summary.wasStopped = true;
    EXPECT_EQ(JudgeSummary(summary), ExitCode::Interrupted);
}
