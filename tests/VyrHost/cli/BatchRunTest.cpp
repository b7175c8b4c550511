// The exit codes for the summaries of batches.
#include <VyrHost/cli/BatchRun.h>

#include <VyrHost/cli/Messages.h>

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

TEST(JudgeSummary, IsSuccessWhereEverythingIsDone)
{
    EXPECT_EQ(JudgeSummary(SummaryOfBatch(1, 3)), ExitCode::success);
}

TEST(JudgeSummary, IsBlockedWhereNothingWasStarted)
{
    BatchSummary summary = SummaryOfBatch(0, 0);
    summary.notReached = 3;
    summary.error = u"another vyr is still at work; try again later";
    EXPECT_EQ(JudgeSummary(summary), ExitCode::blocked);
}

TEST(JudgeSummary, IsPartlyWhereEveryEntryFailsThoughNoBatchIsLeft)
{
    BatchSummary summary = SummaryOfBatch(0, 0);
    summary.failed = 3;
    EXPECT_EQ(JudgeSummary(summary), ExitCode::partly);
}

TEST(JudgeSummary, IsInterruptedWhereItWasStoppedBeforeTheFirstEntry)
{
    BatchSummary summary = SummaryOfBatch(0, 0);
    summary.notReached = 3;
    summary.wasStopped = true;
    EXPECT_EQ(JudgeSummary(summary), ExitCode::interrupted);
}
