// Applies batches, and writes reports and messages about them.
#include <VyrHost/cli/BatchRun.h>

#include <VyrHost/batch/FileOperations.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/cli/SourceOptions.h>
#include <VyrHost/documents/Properties.h>
#include <VyrHost/metadata/Changes.h>
#include <VyrHost/rename/EmptiedFolders.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/ResultOutput.h>
#include <VyrHostPlatform/Console.h>
#include <VyrHostPlatform/Interrupt.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

namespace VyrHost::Cli {

namespace {

/// Says that a batch was cut off, and how to end it.
std::string CutOffNotice(const Batch::BatchInformation& batch)
{
    // A damaged journal does not say when the batch began.
    const std::string time = batch.started.IsEmpty() ? "" : " of " + Text::SafeText(batch.started);
    return "batch " + std::to_string(batch.number) + time + " was cut off; \"vyr recover\" ends it";
}

/// A batch that could rename no entry has no number either, but then each entry has a reason.
bool WasBlocked(const Batch::BatchSummary& summary)
{
    return summary.number == 0 && !summary.error.IsEmpty();
}

/// @param summary  gets the summary of the work.
/// @return the exit code.
int Apply(const PreviewedBatch& batch, const ReportStyle& style, Batch::BatchSummary& summary)
{
    Batch::Batches batches = OpenBatches(WaitTenSeconds());
    if (IsBlockedByCutOff(batches))
        return ExitCode::blocked;
    VyrHostPlatform::Interrupt::Catch();
    Ui::Progress progress(batch.doing, batch.count, style.IsSilent());
    std::size_t done = 0;
    summary = batch.apply(batches, [&](Model::PlanIndex change, const Model::Outcome& outcome) {
        batch.note(change, outcome);
        progress.Show(++done);
    });
    progress.Close();
    return JudgeSummary(summary);
}

std::string EndingOf(const PreviewedBatch& batch, const ReportStyle& style, const Batch::BatchSummary& summary)
{
    if (summary.number != 0)
        return "This was batch " + std::to_string(summary.number) + "; \"vyr undo\" undoes it.\n";
    if (style.isPreview && !batch.isRefused)
        return previewEnding;
    return std::string("Nothing was ") + batch.done + ".\n";
}

} // namespace

Batch::Batches OpenBatches(const Batch::LockWait& wait)
{
    Batch::BatchSettings settings = Batch::SettingsFromEnvironment();
    settings.wait = wait;
    settings.kinds = Metadata::Kinds();
    settings.kinds.merge(Documents::Kinds());
    settings.kinds.merge(Rename::Kinds());
    return {Batch::SystemFiles(), std::move(settings)};
}

void OfferRecovery()
{
    if (const auto cutOff = OpenBatches().FindCutOff())
        Complain(CutOffNotice(*cutOff));
}

bool IsBlockedByCutOff(const Batch::Batches& batches)
{
    const auto cutOff = batches.FindCutOff();
    if (cutOff)
        Complain(CutOffNotice(*cutOff) + "; nothing was done");
    return cutOff.has_value();
}

Batch::LockWait WaitTenSeconds()
{
    return [waits = 0]() mutable {
        constexpr std::chrono::milliseconds pause(100);
        constexpr int mostWaits = 100;
        if (waits == 0)
            Complain("another vyr is at work; waiting up to ten seconds for its end");
        if (waits == mostWaits || VyrHostPlatform::Interrupt::WasAsked())
            return false;
        ++waits;
        std::this_thread::sleep_for(pause);
        return true;
    };
}

RunOptions::RunOptions(CLI::App& command, const Help& help, const char* group) : m_command(command)
{
    const std::string section = group ? group : command.option_defaults()->get_group();
    AddFlag(command, "--apply", m_apply, help.apply, section.c_str());
    AddFlag(command, "--json", m_json, help.json, section.c_str());
    AddFlag(command, "-q,--quiet", m_quiet, help.quiet, section.c_str());
}

ReportStyle RunOptions::Read() const
{
    constexpr ExclusivePair exclusive[] = {{"--json", "--quiet"}};
    CheckOptionPairs(m_command, exclusive);
    return {m_json, m_quiet, !m_apply};
}

int WriteReport(const Model::Results& results, const ReportStyle& style, const std::string& heading,
                const std::string& ending)
{
    const Model::Tally tally(results);
    Ui::OutputBuffer output;
    if (style.json) {
        Ui::WriteResultJson(output, results, style.isPreview);
        if (!style.quiet)
            VyrHostPlatform::Console::Write(VyrHostPlatform::Console::Stream::Error,
                                            Ui::SummaryOf(tally) + style.remark);
    } else if (style.quiet) {
        for (std::size_t index = 0; index < results.Count(); ++index)
            if (const Model::Result result = results.At(index); Ui::IsProblem(result))
                Complain(Ui::MessageFor(result));
    } else {
        Ui::WriteResultTable(output, results);
        output << heading << Ui::SummaryOf(tally) << style.remark << ending;
    }
    return Finish(output, tally.IsWhole() ? ExitCode::success : ExitCode::partly);
}

int ApplyAndReport(const PreviewedBatch& batch, const Model::Results& results, ReportStyle style,
                   const Collect::CollectedEntries& collected)
{
    Batch::BatchSummary summary;
    const bool isApplied = !style.isPreview && !batch.isRefused && batch.count > 0;
    const int applied = isApplied ? Apply(batch, style, summary) : ExitCode::success;
    if (applied == ExitCode::blocked)
        return applied;
    const std::string ending = EndingOf(batch, style, summary);
    style.remark = LeftOutNotice(collected) + style.remark;
    const int shown = WriteReport(results, style, {}, ending);
    if (style.quiet && summary.wasStopped)
        Complain("interrupted: " + Ui::SummaryOf(Model::Tally(results)) + ending);
    return std::max({applied, shown, CodeOf(collected)});
}

BatchReport::BatchReport(const char* what, std::size_t total, Batch::Direction direction, const ReportStyle& style)
    : m_direction(direction), m_style(style), m_progress(what, total, style.IsSilent()), m_results(direction)
{}

Batch::BatchEntryReport BatchReport::Collector()
{
    return [this](const Batch::BatchEntry& entry) {
        m_results.Add(entry);
        m_progress.Show(m_results.Count());
    };
}

int BatchReport::Write(const Batch::BatchSummary& summary)
{
    m_progress.Close();
    const std::string number = std::to_string(summary.number);
    int code = ExitCode::success;
    if (!WasBlocked(summary))
        code = WriteReport(m_results, m_style, summary.number != 0 ? "Batch " + number + ": " : "", Ending(summary));
    if (summary.wasStopped)
        Complain("interrupted" + (m_style.quiet ? ": " + Ui::SummaryOf(Model::Tally(m_results)) : std::string("; ")) +
                 "\"vyr undo " + number +
                 (m_direction == Batch::Direction::Backward ? "\" goes on" : "\" undoes what was done"));
    return std::max(code, JudgeSummary(summary));
}

std::string BatchReport::Ending(const Batch::BatchSummary& summary) const
{
    if (m_style.isPreview)
        return previewEnding;
    if (m_direction == Batch::Direction::Backward && summary.undo != 0 && summary.done > 0)
        return "\"vyr undo " + std::to_string(summary.undo) + "\" redoes it.\n";
    return {};
}

int JudgeSummary(const Batch::BatchSummary& summary)
{
    for (const CString& path : summary.missing)
        Complain("'" + Text::SafeText(path) + "' is not listed by its folder after its rename");
    for (const CString& path : summary.keptFolders)
        Complain("the folder '" + Text::SafeText(path) +
                 "', which the batch made, stays: it is not empty, or cannot be removed; " + "\"vyr undo " +
                 std::to_string(summary.number) + "\" tries again");
    if (!summary.error.IsEmpty())
        Complain(Text::SafeText(summary.error));
    if (WasBlocked(summary))
        return ExitCode::blocked;
    if (summary.wasStopped)
        return ExitCode::interrupted;
    const bool isWhole = summary.failed + summary.refused + summary.notReached == 0;
    return isWhole && summary.error.IsEmpty() && summary.missing.empty() ? ExitCode::success : ExitCode::partly;
}

} // namespace VyrHost::Cli
