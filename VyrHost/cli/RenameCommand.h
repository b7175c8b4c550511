/// @file
/// The command "vyr rename".
#pragma once

#include <VyrHost/cli/RuleOptions.h>

#include <memory>

namespace CLI {
class App;
}

namespace VyrHost {

/// Shows what a rename would give.
class RenameCommand
{
public:
    explicit RenameCommand(CLI::App& program);
    RenameCommand(const RenameCommand&) = delete;
    RenameCommand& operator=(const RenameCommand&) = delete;
    ~RenameCommand();

    /// Whether the parsed command line asks for it.
    [[nodiscard]] bool IsChosen() const;
    /// @return the program's exit code.
    /// @throws UsageError
    [[nodiscard]] int Run() const;

private:
    struct Options;

    CLI::App& m_command;
    RuleOptions m_rules;
    std::unique_ptr<Options> m_options;
};

} // namespace VyrHost
