/// @file
/// Collects and writes what becomes of the entries of a batch.
#pragma once

#include <VyrHost/batch/Batches.h>
#include <VyrHost/ui/BatchOutput.h>
#include <VyrHost/ui/Progress.h>

#include <string>
#include <vector>

namespace VyrHost::Cli {

/// How the user wants to read it.
struct BatchReportStyle
{
    Batch::Direction direction = Batch::Direction::Backward;
    bool json = false;
    /// Only what was not done.
    bool quiet = false;
    /// What is shown was not done.
    bool isPreview = false;
};

class BatchReport
{
public:
    BatchReport(const char* what, std::size_t total, BatchReportStyle style);

    /// To be handed to the work.
    [[nodiscard]] Batch::BatchEntryReport Collector();
    /// Writes all that was collected, and what the summary says.
    /// @return the program's exit code.
    [[nodiscard]] int Write(const Batch::BatchSummary& summary);

private:
    [[nodiscard]] std::string Ending(const Batch::BatchSummary& summary) const;

    const BatchReportStyle m_style;
    Ui::Progress m_progress;
    std::vector<Batch::BatchEntry> m_entries;
};

/// Complains of what `summary` brings up.
/// @return the exit code that it asks for, entries that were not done included.
[[nodiscard]] int JudgeSummary(const Batch::BatchSummary& summary);

} // namespace VyrHost::Cli
