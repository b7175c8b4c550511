/// @file
/// The command "vyr rename".
#pragma once

#include <VyrHost/cli/RenameOptions.h>
#include <VyrHost/cli/RuleOptions.h>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Previews a rename, or does it.
class RenameCommand
{
public:
    explicit RenameCommand(CLI::App& program);

    /// Whether the parsed command line asks for it.
    [[nodiscard]] bool IsChosen() const;
    /// @return the program's exit code.
    /// @throws UsageError
    [[nodiscard]] int Run() const;

private:
    CLI::App& m_command;
    RuleOptions m_rules;
    RenameOptions m_options;
};

} // namespace VyrHost::Cli
