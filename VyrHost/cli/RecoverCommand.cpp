// Declares and runs "vyr recover".
#include <VyrHost/cli/RecoverCommand.h>

#include <VyrHost/apply/Batches.h>
#include <VyrHost/cli/BatchReport.h>
#include <VyrHost/cli/Examples.h>
#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/OptionPairs.h>
#include <VyrHost/output/OutputBuffer.h>
#include <VyrHost/output/SafeText.h>
#include <VyrHostPlatform/Interrupt.h>

#include <CLI/CLI.hpp>

#include <string>

namespace VyrHost {

RecoverCommand::RecoverCommand(CLI::App& program)
    : m_command(
          *program.add_subcommand("recover", "Finish a batch that was cut off (power loss, kill), or take it back"))
{
    m_command.add_flag("--take-back", m_takeBack,
                       "Restore what was before the work that was cut off instead of finishing it");
    m_command.add_flag("--set-aside", m_setAside,
                       "Give the batch up, where neither is possible: files stay as they are");
    m_command.add_flag("--json", m_json, "Write one JSON object for each entry");
    m_command.add_flag("-q,--quiet", m_quiet, "Show only what is not done");
    m_command.footer(RecoverExamples() + "\n" + ExitCode::Table);
}

bool RecoverCommand::IsChosen() const
{
    return m_command.parsed();
}

int RecoverCommand::Run() const
{
    constexpr ExclusivePair Exclusive[] = {{"--set-aside", "--take-back"},
                                           {"--set-aside", "--json", "--set-aside does nothing to the entries"}};
    CheckOptionPairs(m_command, Exclusive);
    Batches batches;
    const auto cutOff = batches.FindCutOff();
    if (!cutOff) {
        OutputBuffer output;
        if (!m_json && !m_quiet)
            output << "No batch was cut off.\n";
        output.Flush();
        return output.HasFailed() ? ExitCode::Output : ExitCode::Success;
    }
    if (m_setAside)
        return SetAside();
    VyrHostPlatform::Interrupt::Catch();
    const Recovery recovery = m_takeBack ? Recovery::TakeBack : Recovery::Finish;
    const BatchDirection direction =
        DoesRenames(recovery, cutOff->state) ? BatchDirection::Forward : BatchDirection::Back;
    BatchReport report("recovering", cutOff->entries, {direction, m_json, m_quiet});
    const BatchSummary summary = batches.Recover(recovery, report.Collector(), VyrHostPlatform::Interrupt::WasAsked);
    return report.Write(summary);
}

int RecoverCommand::SetAside() const
{
    const SetAsideJournal journal = Batches().SetAsideCutOff();
    if (!journal.error.IsEmpty()) {
        Complain(SafeText(journal.error));
        return ExitCode::Blocked;
    }
    OutputBuffer output;
    if (!m_quiet)
        output << "Batch " << std::to_string(journal.number) << " is set aside; its files stay as they are.\n"
               << "Its journal is kept as " << SafeText(journal.to) << "\n"
               << "and can be recovered under its old name, " << SafeText(journal.from) << "\n";
    output.Flush();
    return output.HasFailed() ? ExitCode::Output : ExitCode::Success;
}

} // namespace VyrHost
