// Reports on a batch that is undone or recovered.
#include <VyrHost/cli/BatchReport.h>

#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/OutputBuffer.h>
#include <VyrHostPlatform/Console.h>

namespace VyrHost::Cli {

namespace {

/// A batch of which no entry could be renamed has no number either, but then each entry says why.
bool WasBlocked(const Batch::BatchSummary& summary)
{
    return summary.number == 0 && !summary.error.IsEmpty();
}

} // namespace

BatchReport::BatchReport(const char* what, std::size_t total, BatchReportStyle style)
    : m_style(style), m_progress(what, total, style.json || style.quiet)
{}

Batch::BatchEntryReport BatchReport::Collector()
{
    return [this](const Batch::BatchEntry& entry) {
        m_entries.push_back(entry);
        m_progress.Show(m_entries.size());
    };
}

int BatchReport::Write(const Batch::BatchSummary& summary)
{
    m_progress.Close();
    // Entries that were not reached are only counted: they may be very many, and nothing is wrong with them.
    if (m_style.quiet)
        std::erase_if(m_entries, [](const Batch::BatchEntry& entry) {
            return entry.result.outcome == Model::RenameOutcome::Done ||
                   entry.result.outcome == Model::RenameOutcome::NotReached;
        });
    Ui::OutputBuffer output;
    if (m_style.json) {
        Ui::WriteEntryJson(output, m_entries, m_style.direction);
        VyrHostPlatform::Console::Write(VyrHostPlatform::Console::Stream::Error, Ui::SummaryOf(summary));
    } else {
        Ui::WriteEntryTable(output, m_entries, m_style.direction);
        if (!m_style.quiet && !WasBlocked(summary))
            output << (summary.number != 0 ? "Batch " + std::to_string(summary.number) + ": " : "")
                   << Ui::SummaryOf(summary) << Ending(summary);
    }
    output.Flush();
    if (summary.wasStopped)
        Complain("interrupted" + (m_style.quiet ? ": " + Ui::SummaryOf(summary) : std::string("; ")) + "\"vyr undo " +
                 std::to_string(summary.number) +
                 (m_style.direction == Batch::Direction::Backward ? "\" goes on" : "\" undoes what was done"));
    return Finish(output, JudgeSummary(summary));
}

std::string BatchReport::Ending(const Batch::BatchSummary& summary) const
{
    if (m_style.isPreview)
        return "This is a preview: nothing was changed.\n";
    if (m_style.direction == Batch::Direction::Backward && summary.undo != 0 && summary.done > 0)
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
        return ExitCode::Blocked;
    if (summary.wasStopped)
        return ExitCode::Interrupted;
    const bool isWhole = summary.failed + summary.refused + summary.notReached == 0;
    return isWhole && summary.error.IsEmpty() && summary.missing.empty() ? ExitCode::Success : ExitCode::Partly;
}

} // namespace VyrHost::Cli
