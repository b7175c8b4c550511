/// @file
/// The commands "vyr programs" and "vyr browsers".
#pragma once

#include <VyrHost/cli/PlaceOptions.h>
#include <VyrHost/cli/RecordOptions.h>
#include <VyrHost/inventory/Inventory.h>

#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Lists the programs, or the installer products, that are installed.
class ProgramsCommand
{
public:
    explicit ProgramsCommand(CLI::App& program);
    ProgramsCommand(const ProgramsCommand&) = delete;
    ProgramsCommand& operator=(const ProgramsCommand&) = delete;

    /// Whether the parsed command line asks for it.
    [[nodiscard]] bool IsChosen() const;
    /// @return the program's exit code.
    /// @throws UsageError
    [[nodiscard]] int Run() const;

private:
    [[nodiscard]] Inventory::Scope ReadScope() const;
    [[nodiscard]] int WritePrograms(const Inventory::Place& place, Inventory::Scope scope) const;
    [[nodiscard]] int WriteProducts(const Inventory::Place& place, Inventory::Scope scope) const;

    CLI::App& m_command;
    const PlaceOptions m_place;
    std::optional<std::string> m_user;
    std::optional<std::string> m_scope;
    std::optional<std::string> m_find;
    bool m_installer = false;
    bool m_no32Bit = false;
    bool m_showHidden = false;
    bool m_openSettings = false;
    RecordOptions m_records;
};

/// Lists the browsers that are installed.
class BrowsersCommand
{
public:
    explicit BrowsersCommand(CLI::App& program);
    BrowsersCommand(const BrowsersCommand&) = delete;
    BrowsersCommand& operator=(const BrowsersCommand&) = delete;

    [[nodiscard]] bool IsChosen() const;
    /// @return the program's exit code.
    /// @throws UsageError
    [[nodiscard]] int Run() const;

private:
    CLI::App& m_command;
    const PlaceOptions m_place;
    std::optional<std::string> m_find;
    RecordOptions m_records;
};

} // namespace VyrHost::Cli
