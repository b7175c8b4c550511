/// @file
/// The command "vyr unblock".
#pragma once

#include <VyrHost/cli/ChangeRun.h>
#include <VyrHost/cli/SourceOptions.h>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Takes the marks of downloads off files.
class UnblockCommand
{
public:
    explicit UnblockCommand(CLI::App& program);

    /// Whether the parsed command line asks for it.
    [[nodiscard]] bool IsChosen() const;
    /// @return the program's exit code.
    /// @throws UsageError
    [[nodiscard]] int Run() const;

private:
    CLI::App& m_command;
    SourceOptions m_sources;
    OrderOptions m_order;
    ChangeOptions m_change;
};

} // namespace VyrHost::Cli
