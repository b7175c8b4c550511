#include <VyrHost/cli/Commands.h>

#include <CLI/CLI.hpp>

namespace VyrHost::Cli {

bool Command::IsChosen() const
{
    return m_command.parsed();
}

std::vector<std::unique_ptr<Command>> AddCommands(CLI::App& program)
{
    std::vector<std::unique_ptr<Command>> commands;
    for (const auto add : {AddRenameCommand, AddListCommand, AddTimesCommand, AddAttributesCommand, AddUnblockCommand,
                           AddPropertiesCommand, AddCopyCommand, AddMoveCommand, AddUndoCommand, AddRecoverCommand,
                           AddProgramsCommand, AddBrowsersCommand, AddRulesCommand, AddUpdatesCommand, AddHelpCommand})
        commands.push_back(add(program));
    return commands;
}

} // namespace VyrHost::Cli
