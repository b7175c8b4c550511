/// @file
/// The commands of vyr. Each declares its options, and runs when the command line names it.
#pragma once

#include <memory>
#include <vector>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

class Command
{
public:
    /// @param command  the parser's command.
    explicit Command(CLI::App& command) : m_command(command) {}
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
    virtual ~Command() = default;

    /// Whether the parsed command line names it.
    [[nodiscard]] bool IsChosen() const;
    /// @return the program's exit code.
    /// @throws UsageError
    [[nodiscard]] virtual int Run() const = 0;

protected:
    CLI::App& m_command;
};

/// Adds all commands to `program`, in the order of its help.
[[nodiscard]] std::vector<std::unique_ptr<Command>> AddCommands(CLI::App& program);

/// Previews a rename, or does it.
[[nodiscard]] std::unique_ptr<Command> AddRenameCommand(CLI::App& program);
/// Lists files with their properties.
[[nodiscard]] std::unique_ptr<Command> AddListCommand(CLI::App& program);
/// Shows the times of files, or sets them.
[[nodiscard]] std::unique_ptr<Command> AddTimesCommand(CLI::App& program);
/// Shows the attributes of files, or sets and clears them.
[[nodiscard]] std::unique_ptr<Command> AddAttributesCommand(CLI::App& program);
/// Removes the marks of downloads from files.
[[nodiscard]] std::unique_ptr<Command> AddUnblockCommand(CLI::App& program);
/// Shows the properties of documents, or sets and clears them.
[[nodiscard]] std::unique_ptr<Command> AddPropertiesCommand(CLI::App& program);
/// Previews the copying or moving of folders, or does it.
[[nodiscard]] std::unique_ptr<Command> AddCopyCommand(CLI::App& program);
[[nodiscard]] std::unique_ptr<Command> AddMoveCommand(CLI::App& program);
/// Undoes a batch, redoes one that was undone, or lists the batches.
[[nodiscard]] std::unique_ptr<Command> AddUndoCommand(CLI::App& program);
/// Ends a batch that was cut off: finishes it, or undoes it.
[[nodiscard]] std::unique_ptr<Command> AddRecoverCommand(CLI::App& program);
/// Lists the programs, or the installer products, that are installed.
[[nodiscard]] std::unique_ptr<Command> AddProgramsCommand(CLI::App& program);
/// Lists the browsers that are installed.
[[nodiscard]] std::unique_ptr<Command> AddBrowsersCommand(CLI::App& program);
/// Checks whether a newer release is offered.
[[nodiscard]] std::unique_ptr<Command> AddUpdatesCommand(CLI::App& program);
/// Lists the rules that are kept, or shows one of them.
[[nodiscard]] std::unique_ptr<Command> AddRulesCommand(CLI::App& program);
/// Explains topics and lists the options of commands.
[[nodiscard]] std::unique_ptr<Command> AddHelpCommand(CLI::App& program);

} // namespace VyrHost::Cli
