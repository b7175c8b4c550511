// "vyr copy" and "vyr move".
#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/BatchRun.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/foldercopy/Transfer.h>
#include <VyrHost/foldercopy/TransferBatch.h>
#include <VyrHost/model/EntryList.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/Terminal.h>
#include <VyrHostPlatform/Interrupt.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FullPath.h>

#include <CLI/CLI.hpp>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace VyrHost::Cli {

namespace {

/// Shows the progress, and checks for an interrupt.
class TerminalWatch final : public FolderCopy::TransferWatch
{
public:
    TerminalWatch(const char* what, bool isSilent) : m_what(what), m_isSilent(isSilent) {}

    bool IsStopAsked() override { return VyrHostPlatform::Interrupt::WasAsked(); }

    void Begin(const FolderCopy::TransferTask& task, std::size_t newFolders) override
    {
        m_source = task.shownSource;
        m_progress.emplace(m_what, newFolders, m_isSilent);
    }
    void Show(std::size_t made) override
    {
        if (IsStopAsked() && !std::exchange(m_isTold, true)) {
            m_progress->Close();
            Complain("interrupted; '" + Text::SafeText(m_source) +
                     "' is finished first (a second interrupt stops that, too)");
        }
        m_progress->Show(made);
    }
    void End() override { m_progress.reset(); }

private:
    const char* m_what;
    const bool m_isSilent;
    CString m_source;
    std::optional<Ui::Progress> m_progress;
    bool m_isTold = false;
};

CLI::App& AddCommand(CLI::App& program, FolderCopy::TransferAction action)
{
    if (action == FolderCopy::TransferAction::Copy)
        return *program.add_subcommand("copy", "Copy folders with all that is in them; shows first what would happen");
    return *program.add_subcommand("move", "Move folders with all that is in them; shows first what would happen");
}

/// A moved journal would not be found again.
void RefuseToMoveTheJournal(const std::vector<CString>& sources)
{
    const Model::StayReason stays = OpenBatches().ReasonsToStay();
    for (const CString& source : sources) {
        const std::u16string_view reason =
            stays(CString(), VyrPlatform::GetFullPath(source), VyrPlatform::FileSystem::Kind::Folder);
        if (!reason.empty())
            throw Text::UsageError("'" + Text::SafeText(source) + "' must stay where it is: " + Text::SafeText(reason));
    }
}

constexpr const char* terms =
    "Nothing is overwritten: while anything is in the way, nothing is done at all. Folders of the same name are "
    "merged. "
    "Links are not followed. A folder that is begun is finished, even after Ctrl-C; \"vyr undo\" does not undo it.\n\n";

/// Previews the copying or moving of folders, or does it.
class TransferCommand final : public Command
{
public:
    TransferCommand(CLI::App& program, FolderCopy::TransferAction action);

    [[nodiscard]] int Run() const override;

private:
    [[nodiscard]] bool IsCopy() const { return m_action == FolderCopy::TransferAction::Copy; }
    [[nodiscard]] const char* Ending(const FolderCopy::TransferBatch& batch, const ReportStyle& style) const;

    const FolderCopy::TransferAction m_action;
    /// The folders, then the destination.
    std::vector<std::string> m_paths;
    RunOptions m_run;
};

} // namespace

TransferCommand::TransferCommand(CLI::App& program, FolderCopy::TransferAction action)
    : Command(AddCommand(program, action)), m_action(action),
      m_run(m_command,
            {IsCopy() ? "Copy; without it the result is only shown" : "Move; without it the result is only shown",
             "Write one JSON object for each folder, and for each entry that is in the way or fails",
             "Show only what is in the way or fails"},
            nullptr)
{
    m_command
        .add_option("FOLDER", m_paths,
                    "The folders to " + m_command.get_name() +
                        ", then the destination: an existing folder to go into, or the new path of "
                        "the one folder")
        ->type_name("");
    m_command.footer(HelpFooter(m_command.get_name(), terms));
}

int TransferCommand::Run() const
{
    const ReportStyle style = m_run.Read();
    if (m_paths.size() < 2)
        throw Text::UsageError("a folder and the destination are to be named");
    std::vector<CString> sources;
    for (const std::string& path : m_paths)
        sources.push_back(FromParser(path));
    const CString destination = sources.back();
    sources.pop_back();

    OfferRecovery();
    if (!IsCopy())
        RefuseToMoveTheJournal(sources);
    FolderCopy::TransferBatch batch(sources, destination, m_action,
                                    style.isPreview ? FolderCopy::Trial::No : FolderCopy::Trial::Allowed);
    if (!style.isPreview && !batch.IsRefused()) {
        VyrHostPlatform::Interrupt::Catch();
        TerminalWatch watch(IsCopy() ? "copying folders" : "moving folders", style.IsSilent());
        batch.Apply(watch);
    }
    const int code =
        WriteReport(FolderCopy::TransferResults(batch.Reports(), m_action), style, {}, Ending(batch, style));
    if (batch.CreationError() != 0)
        Complain("warning: folders do not keep their creation times there: " +
                 Text::SafeText(Text::ErrorText(batch.CreationError())));
    return batch.WasStopped() ? ExitCode::interrupted : code;
}

const char* TransferCommand::Ending(const FolderCopy::TransferBatch& batch, const ReportStyle& style) const
{
    if (style.isPreview)
        return previewEnding;
    if (batch.WasStopped())
        return "Interrupted: folders that were not reached are as they were.\n";
    if (!batch.IsRefused())
        return "";
    return IsCopy() ? "Nothing was copied.\n" : "Nothing was moved.\n";
}

std::unique_ptr<Command> AddCopyCommand(CLI::App& program)
{
    return std::make_unique<TransferCommand>(program, FolderCopy::TransferAction::Copy);
}

std::unique_ptr<Command> AddMoveCommand(CLI::App& program)
{
    return std::make_unique<TransferCommand>(program, FolderCopy::TransferAction::Move);
}

} // namespace VyrHost::Cli
