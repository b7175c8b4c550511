#include <VyrHost/cli/Commands.h>

#include <VyrHost/batch/Batches.h>
#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/BatchRun.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/cli/RecordOptions.h>
#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/BatchList.h>
#include <VyrHostPlatform/Console.h>
#include <VyrHostPlatform/Interrupt.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace VyrHost::Cli {

namespace {

/// The maximum number of listed batches of other folders.
constexpr std::size_t mostNamed = 5;

/// Undoes or redoes a batch, or shows what that would do.
class Reversal
{
public:
    Reversal(Batch::Direction direction, const ReportStyle& style)
        : m_direction(direction), m_style(style), m_batches(OpenBatches(WaitTenSeconds()))
    {}

    /// Undoes or redoes `batch`, and names it unless nothing can be done.
    /// @param number  its own, or that of its undo for a redo.
    Batch::BatchSummary Run(const Batch::BatchInformation& batch, std::uint32_t number)
    {
        const bool isUndo = m_direction == Batch::Direction::Backward;
        const char* const what = isUndo ? "undoing" : "redoing";
        m_report = std::make_unique<BatchReport>(what, batch.renamed.value_or(batch.entries), m_direction, m_style);
        const auto collector = [this, &batch, collect = m_report->Collector(),
                                isNamed = false](const Batch::BatchEntry& entry) mutable {
            if (!std::exchange(isNamed, true))
                Announce(batch);
            collect(entry);
        };
        return m_style.isPreview
                   ? m_batches.PreviewReverse(number, m_direction, collector)
                   : m_batches.Reverse(number, m_direction, collector, VyrHostPlatform::Interrupt::WasAsked);
    }

    /// @return the exit code.
    int Write(const Batch::BatchSummary& summary) { return m_report->Write(summary); }

private:
    void Announce(const Batch::BatchInformation& batch) const
    {
        const bool isUndo = m_direction == Batch::Direction::Backward;
        const std::string line = (isUndo ? "Undoing " : "Redoing ") + Text::SafeText(Ui::NameOf(batch)) + ".\n";
        if (!m_style.quiet)
            VyrHostPlatform::Console::Write(m_style.json ? VyrHostPlatform::Console::Stream::Error
                                                         : VyrHostPlatform::Console::Stream::Output,
                                            line);
    }

    const Batch::Direction m_direction;
    const ReportStyle m_style;
    Batch::Batches m_batches;
    std::unique_ptr<BatchReport> m_report;
};

/// Says why a batch was skipped, and how it can still be undone.
void NamePassedOver(const Batch::BatchInformation& batch, const Batch::BatchSummary& summary)
{
    const std::string number = std::to_string(batch.number);
    const std::string way =
        summary.obstacle == Batch::Obstacle::FilesGone
            ? "once they are back, \"vyr undo " + number + "\" undoes it"
            : "the vyr that wrote it, or an intact copy of it, can undo it; a damaged one can be deleted";
    Complain(Text::SafeText(Ui::NameOf(batch)) + " is passed over: " + Text::SafeText(summary.error) + "; " + way);
}

int NameBatchesElsewhere(const std::vector<Batch::BatchInformation>& batches)
{
    if (batches.empty()) {
        Complain("there is no batch to undo");
        return ExitCode::blocked;
    }
    Complain(
        "there is no batch to undo in this folder or below; \"vyr undo NUMBER\" undoes one of the latest elsewhere:");
    for (std::size_t index = 0; index < std::min(mostNamed, batches.size()); ++index)
        Complain(Text::SafeText(Ui::NameOf(batches[index])));
    return ExitCode::blocked;
}

/// Undoes a batch, redoes one that was undone, or lists the batches.
class UndoCommand final : public Command
{
public:
    explicit UndoCommand(CLI::App& program);

    [[nodiscard]] int Run() const override;

private:
    [[nodiscard]] int List() const;
    [[nodiscard]] int ReverseNumber(std::uint32_t number) const;
    [[nodiscard]] int UndoLatest() const;

    RecordOptions m_records;
    std::optional<std::string> m_batch;
    bool m_list = false;
    bool m_preview = false;
};

} // namespace

UndoCommand::UndoCommand(CLI::App& program)
    : Command(*program.add_subcommand("undo", "Undo a batch, the latest of this folder when no number is given")),
      m_records(m_command, Ui::BatchColumns())
{
    m_command
        .add_option_function<std::string>(
            "BATCH", [this](const std::string& text) { m_batch = text; },
            "The number of a batch, or of an undo, which is redone; without it the latest batch that lies in the "
            "current folder or below and is not undone")
        ->type_name("");
    m_command.add_flag("--list", m_list, "List the batches instead, the latest first");
    m_command.add_flag("--preview", m_preview, "Show what would be undone, and change nothing");
    m_command.get_option("--quiet")->description("Show only what is not undone; with --list no headings and no total");
    m_command.footer(HelpFooter("undo"));
}

int UndoCommand::Run() const
{
    constexpr ExclusivePair exclusive[] = {{"--list", "BATCH", "--list lists every batch"},
                                           {"--list", "--preview", "--list lists every batch"}};
    constexpr DependentOption dependent[] = {{"--columns", "--list"},
                                             {"--sort", "--list"},
                                             {"--descending", "--list"},
                                             {"--csv", "--list"},
                                             {"--html", "--list"}};
    CheckOptionPairs(m_command, exclusive, dependent);
    m_records.Check();
    std::optional<std::uint32_t> number;
    if (m_batch)
        number = static_cast<std::uint32_t>(Rename::ParseNumber(FromParser(*m_batch), 1, "BATCH"));
    if (m_list)
        return List();
    if (IsBlockedByCutOff(OpenBatches()))
        return ExitCode::blocked;
    VyrHostPlatform::Interrupt::Catch();
    return number ? ReverseNumber(*number) : UndoLatest();
}

int UndoCommand::List() const
{
    const std::vector<Batch::BatchInformation> batches = OpenBatches().List();
    return m_records.Write(Ui::TableOfBatches(batches), CountedNoun(batches.size(), "batch", "batches") + ".",
                           ExitCode::success);
}

int UndoCommand::ReverseNumber(std::uint32_t number) const
{
    for (const Batch::BatchInformation& batch : OpenBatches().List()) {
        if (batch.number != number && batch.undo != number)
            continue;
        const bool isUndo = batch.number == number;
        Reversal reversal(isUndo ? Batch::Direction::Backward : Batch::Direction::Forward,
                          {m_records.IsJson(), m_records.IsQuiet(), m_preview});
        return reversal.Write(reversal.Run(batch, number));
    }
    Complain(Text::SafeText(Batch::noSuchBatch));
    return ExitCode::blocked;
}

int UndoCommand::UndoLatest() const
{
    const Batch::UndoCandidates candidates = Batch::FindUndoCandidates(OpenBatches().List(), u".");
    for (const Batch::BatchInformation& batch : candidates.here) {
        Reversal reversal(Batch::Direction::Backward, {m_records.IsJson(), m_records.IsQuiet(), m_preview});
        const Batch::BatchSummary summary = reversal.Run(batch, batch.number);
        if (summary.obstacle == Batch::Obstacle::None)
            return reversal.Write(summary);
        NamePassedOver(batch, summary);
    }
    return NameBatchesElsewhere(candidates.elsewhere);
}

std::unique_ptr<Command> AddUndoCommand(CLI::App& program)
{
    return std::make_unique<UndoCommand>(program);
}

} // namespace VyrHost::Cli
