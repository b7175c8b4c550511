/// @file
/// The options that choose files by name, date and size, the same for every command that takes files.
#pragma once

#include <VyrHost/collect/Choice.h>
#include <VyrHost/collect/CollectEntries.h>

#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Adds the options to a command, and reads what was given. Not to be moved once it has added them.
class ChoiceOptions
{
public:
    explicit ChoiceOptions(CLI::App& command);
    ChoiceOptions(const ChoiceOptions&) = delete;
    ChoiceOptions& operator=(const ChoiceOptions&) = delete;

    /// @throws UsageError for options that contradict each other and values that make no sense.
    [[nodiscard]] Collect::Choice Read() const;

private:
    CLI::App& m_command;
    std::optional<std::string> m_modified;
    std::optional<std::string> m_created;
    std::optional<std::string> m_taken;
    std::optional<std::string> m_size;
    bool m_matchCase = false;
};

/// Says how much the choice left out, as a line; empty where that is nothing.
[[nodiscard]] std::string LeftOutNotice(const Collect::CollectedEntries& collected);

} // namespace VyrHost::Cli
