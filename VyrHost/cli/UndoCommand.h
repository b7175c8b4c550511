/// @file
/// The command "vyr undo".
#pragma once

#include <cstdint>
#include <optional>

namespace CLI {
class App;
}

namespace VyrHost {

/// Takes a batch of renames back, or lists the batches.
class UndoCommand
{
public:
    explicit UndoCommand(CLI::App& program);
    UndoCommand(const UndoCommand&) = delete;
    UndoCommand& operator=(const UndoCommand&) = delete;

    /// Whether the parsed command line asks for it.
    [[nodiscard]] bool IsChosen() const;
    /// @return the program's exit code.
    [[nodiscard]] int Run() const;

private:
    CLI::App& m_command;
    std::optional<std::uint32_t> m_number;
    bool m_list = false;
    bool m_json = false;
    bool m_quiet = false;
};

} // namespace VyrHost
