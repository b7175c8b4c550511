/// @file
/// The options that choose files, the same for every command that takes files.
#pragma once

#include <VyrHost/collect/Choice.h>
#include <VyrHost/collect/CollectEntries.h>
#include <VyrHost/collect/Sorting.h>

#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Adds the options to a command, and reads them. Must not be moved: the parser refers to its members.
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

/// Adds the options to a command, and reads them. Must not be moved: the parser refers to its members.
class SourceOptions
{
public:
    /// @param verb  what the command does to the files, such as "rename".
    SourceOptions(CLI::App& command, const std::string& verb);
    SourceOptions(const SourceOptions&) = delete;
    SourceOptions& operator=(const SourceOptions&) = delete;

    /// Whether any path or the standard input is named.
    [[nodiscard]] bool NamesAny() const;
    /// @throws UsageError for options that contradict each other, have no effect or make no sense.
    [[nodiscard]] Collect::SourceSettings Read() const;

private:
    CLI::App& m_command;
    ChoiceOptions m_choice;
    std::vector<std::string> m_paths;
    std::optional<std::string> m_pick;
    std::optional<std::string> m_maxDepth;
    bool m_recursive = false;
    bool m_hidden = false;
    bool m_lines = false;
    bool m_terminated = false;
};

/// The options of the order of a list, --sort and --descending, for commands that list no records.
class OrderOptions
{
public:
    OrderOptions(CLI::App& command, const char* group);
    OrderOptions(const OrderOptions&) = delete;
    OrderOptions& operator=(const OrderOptions&) = delete;

    /// @throws UsageError
    [[nodiscard]] Collect::SortSettings Read() const;

private:
    std::optional<std::string> m_sort;
    bool m_isDescending = false;
};

/// Collects and sorts the entries of a call, and complains about what could not be read.
[[nodiscard]] Collect::CollectedEntries TakeEntries(const Collect::SourceSettings& sources,
                                                    Collect::SortSettings order = {});
/// The exit code for the complaints.
[[nodiscard]] int CodeOf(const Collect::CollectedEntries& collected);
/// A line that says how much the choice left out; empty if nothing.
[[nodiscard]] std::string LeftOutNotice(const Collect::CollectedEntries& collected);

} // namespace VyrHost::Cli
