/// @file
/// The commands "vyr copy" and "vyr move".
#pragma once

#include <VyrHost/cli/TreeRequest.h>

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace VyrHost {

/// Previews the copying or moving of folders, or does it.
class TreeCommand
{
public:
    TreeCommand(CLI::App& program, TreeAction action);
    TreeCommand(const TreeCommand&) = delete;
    TreeCommand& operator=(const TreeCommand&) = delete;

    /// Whether the parsed command line asks for it.
    [[nodiscard]] bool IsChosen() const;
    /// @return the program's exit code.
    /// @throws UsageError
    [[nodiscard]] int Run() const;

private:
    const TreeAction m_action;
    CLI::App& m_command;
    /// The folders, and behind them the destination.
    std::vector<std::string> m_paths;
    bool m_apply = false;
    bool m_json = false;
    bool m_quiet = false;
};

} // namespace VyrHost
