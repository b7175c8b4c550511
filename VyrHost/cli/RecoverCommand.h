/// @file
/// The command "vyr recover".
#pragma once

namespace CLI {
class App;
}

namespace VyrHost {

/// Ends a batch that was cut off: finishes it, or takes it back.
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
    [[nodiscard]] int SetAside() const;

    CLI::App& m_command;
    bool m_takeBack = false;
    bool m_setAside = false;
    bool m_json = false;
    bool m_quiet = false;
};

} // namespace VyrHost
