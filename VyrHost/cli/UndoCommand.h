/// @file
/// The command "vyr undo".
#pragma once

#include <VyrHost/cli/RecordOptions.h>

#include <cstdint>
#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Undoes a batch, redoes one that was undone, or lists the batches.
class UndoCommand
{
public:
    explicit UndoCommand(CLI::App& program);
    UndoCommand(const UndoCommand&) = delete;
    UndoCommand& operator=(const UndoCommand&) = delete;

    /// Whether the parsed command line asks for it.
    [[nodiscard]] bool IsChosen() const;
    /// @return the program's exit code.
    /// @throws UsageError
    [[nodiscard]] int Run() const;

private:
    [[nodiscard]] int List() const;
    [[nodiscard]] int ReverseNumber(std::uint32_t number) const;
    [[nodiscard]] int UndoLatest() const;

    CLI::App& m_command;
    RecordOptions m_records;
    std::optional<std::string> m_batch;
    bool m_list = false;
    bool m_preview = false;
};

} // namespace VyrHost::Cli
