/// @file
/// The options of "vyr rename" beside the rules.
#pragma once

#include <VyrHost/cli/RenameRequest.h>
#include <VyrHost/cli/SourceOptions.h>

#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Adds the options to a command, and reads what was given. Not to be moved once it has added them.
class RenameOptions
{
public:
    explicit RenameOptions(CLI::App& command);
    RenameOptions(const RenameOptions&) = delete;
    RenameOptions& operator=(const RenameOptions&) = delete;

    /// The request without its rules.
    /// @throws UsageError for options that contradict each other and values that make no sense.
    [[nodiscard]] RenameRequest Read() const;

    /// Whether it is said how a name that is taken is numbered.
    [[nodiscard]] bool AsksForNumbering() const;

private:
    void AddSources(CLI::App& command);
    void AddOrder(CLI::App& command);
    void AddConflicts(CLI::App& command);
    void AddOutput(CLI::App& command);
    [[nodiscard]] Rename::ConflictSettings ReadConflicts() const;
    void ReadNumbering(Rename::ConflictSettings& settings) const;

    CLI::App& m_command;
    SourceOptions m_sources;
    OrderOptions m_order;
    std::optional<std::string> m_pairs;
    std::optional<std::string> m_onConflict;
    std::optional<std::string> m_conflictPattern;
    std::optional<std::string> m_conflictDigits;
    std::optional<std::string> m_conflictPosition;
    std::optional<std::string> m_conflictStart;
    std::optional<std::string> m_conflictStep;
    bool m_countsPerFolder = false;
    bool m_together = false;
    bool m_edit = false;
    bool m_apply = false;
    bool m_json = false;
    bool m_quiet = false;
};

} // namespace VyrHost::Cli
