/// @file
/// The command "vyr times".
#pragma once

#include <VyrHost/cli/ChangeRun.h>
#include <VyrHost/cli/SourceOptions.h>
#include <VyrHost/metadata/TimesRule.h>

#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Shows the times of files, or sets them.
class TimesCommand
{
public:
    explicit TimesCommand(CLI::App& program);

    /// Whether the parsed command line asks for it.
    [[nodiscard]] bool IsChosen() const;
    /// @return the program's exit code.
    /// @throws UsageError
    [[nodiscard]] int Run() const;

private:
    /// Nothing when no time is to be changed.
    [[nodiscard]] std::optional<Metadata::TimesSettings> ReadSettings() const;

    CLI::App& m_command;
    SourceOptions m_sources;
    OrderOptions m_order;
    ChangeOptions m_change;
    std::optional<std::string> m_modified;
    std::optional<std::string> m_created;
    std::optional<std::string> m_accessed;
    std::optional<std::string> m_shift;
    std::optional<std::string> m_stagger;
    std::optional<std::string> m_start;
    bool m_openSettings = false;
};

} // namespace VyrHost::Cli
