/// @file
/// The command "vyr list".
#pragma once

#include <VyrHost/cli/RecordOptions.h>
#include <VyrHost/cli/SourceOptions.h>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Lists files with what can be told of them.
class ListCommand
{
public:
    explicit ListCommand(CLI::App& program);

    /// Whether the parsed command line asks for it.
    [[nodiscard]] bool IsChosen() const;
    /// @return the program's exit code.
    /// @throws UsageError
    [[nodiscard]] int Run() const;

private:
    CLI::App& m_command;
    SourceOptions m_sources;
    RecordOptions m_records;
};

} // namespace VyrHost::Cli
