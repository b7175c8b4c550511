#include <VyrHost/cli/Commands.h>

#include <VyrHost/batch/Batches.h>
#include <VyrHost/cli/BatchRun.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/Output.h>
#include <VyrHostPlatform/Interrupt.h>

#include <CLI/CLI.hpp>

#include <memory>
#include <string>

namespace VyrHost::Cli {

namespace {

/// Ends a batch that was cut off: finishes it, or undoes it.
class RecoverCommand final : public Command
{
public:
    explicit RecoverCommand(CLI::App& program);

    [[nodiscard]] int Run() const override;

private:
    [[nodiscard]] int Abandon() const;

    bool m_takeBack = false;
    bool m_abandon = false;
    bool m_preview = false;
    bool m_json = false;
    bool m_quiet = false;
};

} // namespace

RecoverCommand::RecoverCommand(CLI::App& program)
    : Command(*program.add_subcommand("recover", "Finish a batch that was cut off (power loss, kill), or undo it"))
{
    m_command.add_flag("--take-back", m_takeBack, "Restore the names before the batch instead of finishing it");
    m_command.add_flag("--abandon", m_abandon,
                       "Abandon the batch where neither is possible; its files stay as they are");
    m_command.add_flag("--preview", m_preview, "Show what would be done, and change nothing");
    m_command.add_flag("--json", m_json, "Write one JSON object for each entry");
    m_command.add_flag("-q,--quiet", m_quiet, "Show only what is not done");
    m_command.footer(HelpFooter("recover"));
}

int RecoverCommand::Run() const
{
    constexpr ExclusivePair exclusive[] = {{"--abandon", "--take-back"},
                                           {"--abandon", "--preview", "--abandon does nothing to the entries"},
                                           {"--abandon", "--json", "--abandon does nothing to the entries"}};
    CheckOptionPairs(m_command, exclusive);
    Batch::Batches batches = OpenBatches(WaitTenSeconds());
    const auto cutOff = batches.FindCutOff();
    if (!cutOff) {
        Ui::OutputBuffer output;
        if (!m_json && !m_quiet)
            output << "No batch was cut off.\n";
        return Finish(output, ExitCode::success);
    }
    if (m_abandon)
        return Abandon();
    VyrHostPlatform::Interrupt::Catch();
    const Batch::Recovery recovery = m_takeBack ? Batch::Recovery::Undo : Batch::Recovery::Finish;
    const Batch::Direction direction =
        Batch::DoesRenames(recovery, cutOff->state) ? Batch::Direction::Forward : Batch::Direction::Backward;
    BatchReport report("recovering", cutOff->entries, direction, {m_json, m_quiet, m_preview});
    return report.Write(m_preview
                            ? batches.PreviewRecover(recovery, report.Collector())
                            : batches.Recover(recovery, report.Collector(), VyrHostPlatform::Interrupt::WasAsked));
}

int RecoverCommand::Abandon() const
{
    const Batch::AbandonedJournal journal = OpenBatches(WaitTenSeconds()).AbandonCutOff();
    if (!journal.error.IsEmpty()) {
        Complain(Text::SafeText(journal.error));
        return ExitCode::blocked;
    }
    Ui::OutputBuffer output;
    if (!m_quiet)
        output << "Batch " << std::to_string(journal.number) << " is abandoned; its files stay as they are.\n"
               << "Its journal is kept as " << Text::SafeText(journal.to) << "\n"
               << "and can be recovered under its old name, " << Text::SafeText(journal.from) << "\n";
    return Finish(output, ExitCode::success);
}

std::unique_ptr<Command> AddRecoverCommand(CLI::App& program)
{
    return std::make_unique<RecoverCommand>(program);
}

} // namespace VyrHost::Cli
