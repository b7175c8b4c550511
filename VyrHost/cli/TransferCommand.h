/// @file
/// The commands "vyr copy" and "vyr move".
#pragma once

#include <VyrHost/cli/TransferRequest.h>

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Previews the copying or moving of folders, or does it.
class TransferCommand
{
public:
    TransferCommand(CLI::App& program, FolderCopy::TransferAction action);
    TransferCommand(const TransferCommand&) = delete;
    TransferCommand& operator=(const TransferCommand&) = delete;

    /// Whether the parsed command line asks for it.
    [[nodiscard]] bool IsChosen() const;
    /// @return the program's exit code.
    /// @throws UsageError
    [[nodiscard]] int Run() const;

private:
    const FolderCopy::TransferAction m_action;
    CLI::App& m_command;
    /// The folders, and behind them the destination.
    std::vector<std::string> m_paths;
    bool m_apply = false;
    bool m_json = false;
    bool m_quiet = false;
};

} // namespace VyrHost::Cli
