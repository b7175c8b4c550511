/// @file
/// The command "vyr attributes".
#pragma once

#include <VyrHost/cli/ChangeRun.h>
#include <VyrHost/cli/SourceOptions.h>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Shows the attributes of files, or sets and clears them.
class AttributesCommand
{
public:
    explicit AttributesCommand(CLI::App& program);

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
    bool m_clearsAll = false;
};

} // namespace VyrHost::Cli
