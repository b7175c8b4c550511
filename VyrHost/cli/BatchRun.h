/// @file
/// Batches at work, the same way for all commands: the batches of the user, the options that say what is done and
/// shown, and the report on what becomes of a call.
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

/// Complains of a batch that was cut off, if there is one, before which no other can begin.
/// @return whether there is one.
[[nodiscard]] bool IsBlockedByCutOff(const Batch::Batches& batches);

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

/// The options --apply, --json and --quiet of a command that shows first what it would do. Not to be moved once it has
/// added them.
class RunOptions
{
public:
    /// What the help says of them.
    struct Help
    {
        const char* apply;
        const char* json;
        const char* quiet;
    };

    /// @param group  of the help; that of options without a group where it is null.
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
/// @param heading  stands before the summary of a table.
/// @param ending   stands behind it: what was done, or how it goes on. With a line end, or empty.
/// @return the exit code.
[[nodiscard]] int WriteReport(const Model::Results& results, const ReportStyle& style, const std::string& heading,
                              const std::string& ending);

/// A batch as a command has previewed it.
struct PreviewedBatch
{
    /// What is done to the entries, and was: "renaming", "renamed".
    const char* doing;
    const char* done;
    /// How many changes it has.
    std::size_t count = 0;
    /// Nothing may be done; why was said.
    bool isRefused = false;
    /// Does the changes.
    std::function<Batch::BatchSummary(Batch::Batches& batches, const Batch::RenameReport& report)> apply;
    /// Notes in the results what became of a change, by its index in the batch.
    Batch::RenameReport note;
};

/// Applies `batch`, unless only its preview was asked for, and writes what became of the entries, or would.
/// @param collected  the entries that the call is about.
/// @return the program's exit code.
[[nodiscard]] int ApplyAndReport(const PreviewedBatch& batch, const Model::Results& results, ReportStyle style,
                                 const Collect::CollectedEntries& collected);

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

/// Complains of what `summary` says went wrong.
/// @return the exit code that it asks for, entries that were not done included.
[[nodiscard]] int JudgeSummary(const Batch::BatchSummary& summary);

} // namespace VyrHost::Cli
