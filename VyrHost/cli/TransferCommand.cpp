// Declares "vyr copy" and "vyr move" and makes a request of what was given.
#include <VyrHost/cli/TransferCommand.h>

#include <VyrHost/cli/ArgumentText.h>
#include <VyrHost/cli/Examples.h>
#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/cli/OptionPairs.h>
#include <VyrHost/text/UsageError.h>

#include <CLI/CLI.hpp>

namespace VyrHost::Cli {

namespace {

CLI::App& AddCommand(CLI::App& program, FolderCopy::TransferAction action)
{
    if (action == FolderCopy::TransferAction::Copy)
        return *program.add_subcommand("copy", "Copy folders with all that is in them; shows first what would happen");
    return *program.add_subcommand("move", "Move folders with all that is in them; shows first what would happen");
}

constexpr const char* Terms =
    "Nothing is overwritten: while anything is in the way, nothing is done at all. A folder of the same name at the "
    "destination takes up the entries. Links are not followed. A folder that is begun is brought to its end, Ctrl-C or "
    "not; \"vyr undo\" does not undo it.\n\n";

} // namespace

TransferCommand::TransferCommand(CLI::App& program, FolderCopy::TransferAction action)
    : m_action(action), m_command(AddCommand(program, action))
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
    m_command.footer(Terms + (isCopy ? CopyExamples() : MoveExamples()) + "\n" + ExitCode::Table);
}

bool TransferCommand::IsChosen() const
{
    return m_command.parsed();
}

int TransferCommand::Run() const
{
    constexpr ExclusivePair Exclusive[] = {{"--json", "--quiet"}};
    CheckOptionPairs(m_command, Exclusive);
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
    return RunTransfer(request);
}

} // namespace VyrHost::Cli
