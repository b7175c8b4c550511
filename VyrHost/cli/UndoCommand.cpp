// Declares and runs "vyr undo".
#include <VyrHost/cli/UndoCommand.h>

#include <VyrHost/apply/Batches.h>
#include <VyrHost/cli/ArgumentText.h>
#include <VyrHost/cli/BatchReport.h>
#include <VyrHost/cli/Examples.h>
#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/OptionPairs.h>
#include <VyrHost/output/BatchOutput.h>
#include <VyrHost/output/OutputBuffer.h>
#include <VyrHost/rules/RuleTexts.h>
#include <VyrHostPlatform/Interrupt.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <vector>

namespace VyrHost {

namespace {

/// How many entries the batch `number`, or the latest that is not taken back, has to take back.
std::size_t CountEntries(const std::vector<BatchInformation>& batches, std::optional<std::uint32_t> number)
{
    const auto found = std::find_if(batches.begin(), batches.end(), [number](const BatchInformation& batch) {
        return number ? batch.number == *number : IsToTakeBack(batch.state);
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
            "The number of a batch; the latest that is not taken back when not given")
        ->type_name("");
    m_command.add_flag("--list", m_list, "List the batches instead, the latest first");
    m_command.add_flag("--json", m_json, "Write one JSON object a line");
    m_command.add_flag("-q,--quiet", m_quiet, "Show only what is not taken back");
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
        number = static_cast<std::uint32_t>(ParseNumber(FromParser(*m_batch), 1, "BATCH"));
    Batches batches;
    const std::vector<BatchInformation> known = batches.List();
    if (m_list) {
        OutputBuffer output;
        m_json ? WriteBatchJson(output, known) : WriteBatchLines(output, known);
        output.Flush();
        return output.HasFailed() ? ExitCode::Output : ExitCode::Success;
    }
    if (const auto cutOff = batches.FindCutOff()) {
        Complain(CutOffNotice(*cutOff) + "; nothing was done");
        return ExitCode::Blocked;
    }
    VyrHostPlatform::Interrupt::Catch();
    BatchReport report("taking back", CountEntries(known, number), {BatchDirection::Back, m_json, m_quiet});
    const BatchSummary summary = batches.TakeBack(number, report.Collector(), VyrHostPlatform::Interrupt::WasAsked);
    return report.Write(summary);
}

} // namespace VyrHost
