// Declares and runs "vyr undo".
#include <VyrHost/cli/UndoCommand.h>

#include <VyrHost/batch/Batches.h>
#include <VyrHost/cli/ArgumentText.h>
#include <VyrHost/cli/BatchReport.h>
#include <VyrHost/cli/Examples.h>
#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/OptionPairs.h>
#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/ui/BatchOutput.h>
#include <VyrHost/ui/OutputBuffer.h>
#include <VyrHostPlatform/Interrupt.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <vector>

namespace VyrHost::Cli {

namespace {

/// How many entries the batch `number`, or the latest that is not undone, has to undo.
std::size_t CountEntries(const std::vector<Batch::BatchInformation>& batches, std::optional<std::uint32_t> number)
{
    const auto found = std::find_if(batches.begin(), batches.end(), [number](const Batch::BatchInformation& batch) {
        return number ? batch.number == *number : Batch::CanBeUndone(batch.state);
    });
    return found == batches.end() ? 0 : found->renamed.value_or(found->entries);
}

} // namespace

UndoCommand::UndoCommand(CLI::App& program)
    : m_command(*program.add_subcommand("undo", "Take the last batch of renames back"))
{
    m_command
        .add_option_function<std::string>(
            "BATCH", [this](const std::string& text) { m_batch = text; },
            "The number of a batch; the latest that is not undone when not given")
        ->type_name("");
    m_command.add_flag("--list", m_list, "List the batches instead, the latest first");
    m_command.add_flag("--json", m_json, "Write one JSON object a line");
    m_command.add_flag("-q,--quiet", m_quiet, "Show only what is not undone");
    m_command.footer(UndoExamples() + "\n" + ExitCode::Table);
}

bool UndoCommand::IsChosen() const
{
    return m_command.parsed();
}

int UndoCommand::Run() const
{
    constexpr ExclusivePair Exclusive[] = {{"--list", "BATCH", "--list lists every batch"},
                                           {"--list", "--quiet", "--list lists every batch"}};
    CheckOptionPairs(m_command, Exclusive);
    std::optional<std::uint32_t> number;
    if (m_batch)
        number = static_cast<std::uint32_t>(Rename::ParseNumber(FromParser(*m_batch), 1, "BATCH"));
    Batch::Batches batches;
    const std::vector<Batch::BatchInformation> known = batches.List();
    if (m_list) {
        Ui::OutputBuffer output;
        m_json ? Ui::WriteBatchJson(output, known) : Ui::WriteBatchLines(output, known);
        return Finish(output, ExitCode::Success);
    }
    if (const auto cutOff = batches.FindCutOff()) {
        Complain(CutOffNotice(*cutOff) + "; nothing was done");
        return ExitCode::Blocked;
    }
    VyrHostPlatform::Interrupt::Catch();
    BatchReport report("undoing", CountEntries(known, number), {Ui::BatchDirection::Back, m_json, m_quiet});
    const Batch::BatchSummary summary = batches.Undo(number, report.Collector(), VyrHostPlatform::Interrupt::WasAsked);
    return report.Write(summary);
}

} // namespace VyrHost::Cli
