/// @file
/// Runs batches in the same way for all commands: opens the batches of the user, declares the options for applying and
/// output, and writes the report.
#pragma once

#include <VyrHost/batch/Batches.h>
#include <VyrHost/cli/HelpTopics.h>
#include <VyrHost/collect/CollectEntries.h>
#include <VyrHost/model/Result.h>
#include <VyrHost/ui/Terminal.h>

#include <cstddef>
#include <functional>
#include <string>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// @param wait  called while another program works on a batch.
[[nodiscard]] Batch::Batches OpenBatches(const Batch::LockWait& wait = {});

/// Complains about a batch that was cut off, if there is one: no other can begin before it is ended.
/// @return whether there is one.
[[nodiscard]] bool IsBlockedByCutOff(const Batch::Batches& batches);

/// Complains about a batch that was cut off, if there is one, for a command that can run all the same: the batch may be
/// half done on the disk.
void OfferRecovery();

/// While another vyr is at work: says so once, and waits up to ten seconds or until Ctrl-C.
[[nodiscard]] Batch::LockWait WaitTenSeconds();

/// The form of a report.
struct ReportStyle
{
    /// JSON lines; the summary goes to the error stream.
    bool json = false;
    /// Writes only problems, as messages; with `json` everything but the summary.
    bool quiet = false;
    /// Nothing was changed.
    bool isPreview = false;
    /// A text after the summary, on the same stream; with a line end, or empty.
    std::string remark = {};

    [[nodiscard]] bool IsSilent() const { return json || quiet; }
};

/// The options --apply, --json and --quiet of a command that shows first what it would do. Must not be moved: the
/// parser refers to its members.
class RunOptions
{
public:
    /// Their descriptions in the help.
    struct Help
    {
        const char* apply;
        const char* json;
        const char* quiet;
    };

    /// @param group  their group in the help; null for no group.
    RunOptions(CLI::App& command, const Help& help, const char* group = OptionGroup::run);
    RunOptions(const RunOptions&) = delete;
    RunOptions& operator=(const RunOptions&) = delete;

    /// @throws UsageError for options that contradict each other.
    [[nodiscard]] ReportStyle Read() const;

private:
    CLI::App& m_command;
    bool m_apply = false;
    bool m_json = false;
    bool m_quiet = false;
};

/// The last line of a preview.
inline constexpr const char* previewEnding = "This is a preview: nothing was changed.\n";

/// Writes `results` and their summary to the standard output.
/// @param heading  a text before the summary of a table.
/// @param ending  a text after it: what was done, or what to do next. With a line end, or empty.
/// @return the exit code.
[[nodiscard]] int WriteReport(const Model::Results& results, const ReportStyle& style, const std::string& heading,
                              const std::string& ending);

/// A batch that a command has previewed.
struct PreviewedBatch
{
    /// The verb in two forms: "renaming", "renamed".
    const char* doing;
    const char* done;
    /// The number of its changes.
    std::size_t count = 0;
    /// Nothing may be done; a message has said why.
    bool isRefused = false;
    /// Applies the changes.
    std::function<Batch::BatchSummary(Batch::Batches& batches, const Batch::RenameReport& report)> apply;
    /// Sets the result of the change with an index in the batch.
    Batch::RenameReport note;
};

/// Applies `batch`, unless only its preview was requested, and writes the results.
/// @param collected  the entries of the call.
/// @return the program's exit code.
[[nodiscard]] int ApplyAndReport(const PreviewedBatch& batch, const Model::Results& results, ReportStyle style,
                                 const Collect::CollectedEntries& collected);

/// Collects and writes the results of a batch that is undone, redone or recovered.
class BatchReport
{
public:
    /// @param what  the activity on `total` entries, for the progress: "undoing".
    BatchReport(const char* what, std::size_t total, Batch::Direction direction, const ReportStyle& style);

    /// The function to pass to the work.
    [[nodiscard]] Batch::BatchEntryReport Collector();
    /// Writes the collected results and the summary.
    /// @return the exit code.
    [[nodiscard]] int Write(const Batch::BatchSummary& summary);

private:
    [[nodiscard]] std::string Ending(const Batch::BatchSummary& summary) const;

    const Batch::Direction m_direction;
    const ReportStyle m_style;
    Ui::Progress m_progress;
    Batch::BatchResults m_results;
};

/// Complains about the errors in `summary`.
/// @return the exit code, which also counts entries that were not done.
[[nodiscard]] int JudgeSummary(const Batch::BatchSummary& summary);

} // namespace VyrHost::Cli
