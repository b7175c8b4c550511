/// @file
/// Batches at work, the same way for all commands: the batches of the user, and the report on what becomes of a call.
#pragma once

#include <VyrHost/batch/Batches.h>
#include <VyrHost/model/Result.h>
#include <VyrHost/ui/Terminal.h>

#include <string>

namespace VyrHost::Cli {

/// @param wait  called while another program works on a batch.
[[nodiscard]] Batch::Batches OpenBatches(const Batch::LockWait& wait = {});

/// That a batch was cut off, and what ends it.
[[nodiscard]] std::string CutOffNotice(const Batch::BatchInformation& batch);

/// Complains of a batch that was cut off, if there is one, for a command that need not wait for its end: what such a
/// command finds on the disk may be half of the batch.
void OfferRecovery();

/// What a command does while another vyr is at work: says so once, and waits up to ten seconds, or until Ctrl-C.
[[nodiscard]] Batch::LockWait WaitTenSeconds();

/// How the user wants to read it.
struct ReportStyle
{
    /// JSON lines; the summary goes to the error stream.
    bool json = false;
    /// Only what is wrong, as messages; with `json` all but the summary.
    bool quiet = false;
    /// Nothing was changed.
    bool isPreview = false;
    /// Stands behind the summary, wherever that goes; with a line end, or empty.
    std::string remark = {};

    [[nodiscard]] bool IsSilent() const { return json || quiet; }
};

/// Writes `results` and their summary to the standard output.
/// @param heading  stands before the summary of a table.
/// @param ending   stands behind it: what was done, or how it goes on. With a line end, or empty.
/// @return the exit code.
[[nodiscard]] int WriteReport(const Model::Results& results, const ReportStyle& style, const std::string& heading,
                              const std::string& ending);

/// Collects and writes what becomes of the entries of a batch that is undone, redone or recovered.
class BatchReport
{
public:
    /// @param what  is done with `total` entries, for the progress: "undoing".
    BatchReport(const char* what, std::size_t total, Batch::Direction direction, const ReportStyle& style);

    /// To be handed to the work.
    [[nodiscard]] Batch::BatchEntryReport Collector();
    /// Writes all that was collected, and what the summary says.
    /// @return the exit code.
    [[nodiscard]] int Write(const Batch::BatchSummary& summary);

private:
    [[nodiscard]] std::string Ending(const Batch::BatchSummary& summary) const;

    const Batch::Direction m_direction;
    const ReportStyle m_style;
    Ui::Progress m_progress;
    Batch::BatchResults m_results;
};

/// Complains of what `summary` brings up.
/// @return the exit code that it asks for, entries that were not done included.
[[nodiscard]] int JudgeSummary(const Batch::BatchSummary& summary);

} // namespace VyrHost::Cli
