/// @file
/// The command "vyr updates".
#pragma once

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Tells whether a newer release is offered.
class UpdatesCommand
{
public:
    explicit UpdatesCommand(CLI::App& program);
    UpdatesCommand(const UpdatesCommand&) = delete;
    UpdatesCommand& operator=(const UpdatesCommand&) = delete;

    /// Whether the parsed command line asks for it.
    [[nodiscard]] bool IsChosen() const;
    /// @return the program's exit code.
    [[nodiscard]] int Run() const;

private:
    CLI::App& m_command;
    int m_days = 0;
};

} // namespace VyrHost::Cli
