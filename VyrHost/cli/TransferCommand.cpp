// Declares and runs "vyr copy" and "vyr move".
#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/BatchRun.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/foldercopy/Transfer.h>
#include <VyrHost/foldercopy/TransferBatch.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/Terminal.h>
#include <VyrHostPlatform/Interrupt.h>

#include <CLI/CLI.hpp>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace VyrHost::Cli {

namespace {

/// What such a call asks for.
struct TransferRequest
{
    FolderCopy::TransferAction action = FolderCopy::TransferAction::Copy;
    /// As the user gave them.
    std::vector<CString> sources;
    CString destination;
    bool apply = false;
    bool json = false;
    bool quiet = false;
};

/// Shows how far the work is, and looks for an interrupt.
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
                     "' is brought to its end first (a second interrupt ends that, too)");
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

class TransferRun
{
public:
    explicit TransferRun(const TransferRequest& request)
        : m_request(request), m_batch(request.sources, request.destination, request.action,
                                      request.apply ? FolderCopy::Trial::Allowed : FolderCopy::Trial::No)
    {}

    int Run()
    {
        if (m_request.apply && !m_batch.IsRefused())
            Apply();
        const int code = WriteReport(FolderCopy::TransferResults(m_batch.Reports(), m_request.action),
                                     {m_request.json, m_request.quiet, !m_request.apply}, {}, Ending());
        if (m_batch.CreationError() != 0)
            Complain("warning: folders do not keep their creation times there: " +
                     Text::SafeText(Text::ErrorText(m_batch.CreationError())));
        return m_batch.WasStopped() ? ExitCode::interrupted : code;
    }

private:
    void Apply()
    {
        VyrHostPlatform::Interrupt::Catch();
        TerminalWatch watch(m_request.action == FolderCopy::TransferAction::Copy ? "copying folders" : "moving folders",
                            m_request.quiet || m_request.json);
        m_batch.Apply(watch);
    }

    [[nodiscard]] const char* Ending() const
    {
        if (!m_request.apply)
            return "This is a preview: nothing was changed.\n";
        if (m_batch.WasStopped())
            return "Interrupted: folders that were not reached are as they were.\n";
        if (!m_batch.IsRefused())
            return "";
        return m_request.action == FolderCopy::TransferAction::Copy ? "Nothing was copied.\n" : "Nothing was moved.\n";
    }

    const TransferRequest& m_request;
    FolderCopy::TransferBatch m_batch;
};

CLI::App& AddCommand(CLI::App& program, FolderCopy::TransferAction action)
{
    if (action == FolderCopy::TransferAction::Copy)
        return *program.add_subcommand("copy", "Copy folders with all that is in them; shows first what would happen");
    return *program.add_subcommand("move", "Move folders with all that is in them; shows first what would happen");
}

constexpr const char* terms =
    "Nothing is overwritten: while anything is in the way, nothing is done at all. A folder of the same name at the "
    "destination takes up the entries. Links are not followed. A folder that is begun is brought to its end, Ctrl-C or "
    "not; \"vyr undo\" does not undo it.\n\n";

/// Previews the copying or moving of folders, or does it.
class TransferCommand final : public Command
{
public:
    TransferCommand(CLI::App& program, FolderCopy::TransferAction action);

    [[nodiscard]] int Run() const override;

private:
    const FolderCopy::TransferAction m_action;
    /// The folders, and behind them the destination.
    std::vector<std::string> m_paths;
    bool m_apply = false;
    bool m_json = false;
    bool m_quiet = false;
};

} // namespace

TransferCommand::TransferCommand(CLI::App& program, FolderCopy::TransferAction action)
    : Command(AddCommand(program, action)), m_action(action)
{
    const bool isCopy = action == FolderCopy::TransferAction::Copy;
    m_command
        .add_option("FOLDER", m_paths,
                    isCopy ? "The folders to copy, and behind them the destination: a folder that is there, to go "
                             "into; or the new path of the one folder"
                           : "The folders to move, and behind them the destination: a folder that is there, to go "
                             "into; or the new path of the one folder")
        ->type_name("");
    m_command.add_flag("--apply", m_apply,
                       isCopy ? "Copy; without it the result is only shown"
                              : "Move; without it the result is only shown");
    m_command.add_flag("--json", m_json, "Write one JSON object for each folder, and for each entry in trouble");
    m_command.add_flag("-q,--quiet", m_quiet, "Show only what is in the way or fails");
    m_command.footer(terms + (isCopy ? CopyExamples() : MoveExamples()) + "\n" + ExitCode::table);
}

int TransferCommand::Run() const
{
    constexpr ExclusivePair exclusive[] = {{"--json", "--quiet"}};
    CheckOptionPairs(m_command, exclusive);
    if (m_paths.size() < 2)
        throw Text::UsageError("a folder and the destination are to be named");
    TransferRequest request;
    request.action = m_action;
    for (const std::string& path : m_paths)
        request.sources.push_back(FromParser(path));
    request.destination = request.sources.back();
    request.sources.pop_back();
    request.apply = m_apply;
    request.json = m_json;
    request.quiet = m_quiet;
    OfferRecovery();
    return TransferRun(request).Run();
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
