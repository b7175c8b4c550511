/// @file
/// Collects and writes what becomes of the entries of a batch.
#pragma once

#include <VyrHost/apply/Batches.h>
#include <VyrHost/output/BatchOutput.h>
#include <VyrHost/output/Progress.h>

#include <vector>

namespace VyrHost {

/// How the user wants to read it.
struct BatchReportStyle
{
    BatchDirection direction = BatchDirection::Back;
    bool json = false;
    /// Only what was not done.
    bool quiet = false;
};

class BatchReport
{
public:
    BatchReport(const char* what, std::size_t total, BatchReportStyle style);

    /// To be handed to the work.
    [[nodiscard]] BatchEntryReport Collector();
    /// Writes all that was collected, and what the summary says.
    /// @return the program's exit code.
    [[nodiscard]] int Write(const BatchSummary& summary);

private:
    const BatchReportStyle m_style;
    Progress m_progress;
    std::vector<BatchEntry> m_entries;
};

/// Complains of what `summary` brings up.
/// @return the exit code that it asks for, entries that were not done included.
[[nodiscard]] int JudgeSummary(const BatchSummary& summary);

} // namespace VyrHost
