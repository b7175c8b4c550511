/// @file
/// The command "vyr recover".
#pragma once

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Ends a batch that was cut off: finishes it, or undoes it.
class RecoverCommand
{
public:
    explicit RecoverCommand(CLI::App& program);
    RecoverCommand(const RecoverCommand&) = delete;
    RecoverCommand& operator=(const RecoverCommand&) = delete;

    /// Whether the parsed command line asks for it.
    [[nodiscard]] bool IsChosen() const;
    /// @return the program's exit code.
    /// @throws UsageError
    [[nodiscard]] int Run() const;

private:
    [[nodiscard]] int Abandon() const;

    CLI::App& m_command;
    bool m_takeBack = false;
    bool m_abandon = false;
    bool m_json = false;
    bool m_quiet = false;
};

} // namespace VyrHost::Cli
