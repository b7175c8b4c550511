/// @file
/// The options that are rules, and the settings that belong to them.
#pragma once

#include <VyrHost/rename/Rule.h>

#include <optional>
#include <string>
#include <string_view>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Adds the options of rules and their settings to a command, and makes rules of the given ones. Must not be moved: the
/// parser refers to its members.
class RuleOptions
{
public:
    explicit RuleOptions(CLI::App& command);
    RuleOptions(const RuleOptions&) = delete;
    RuleOptions& operator=(const RuleOptions&) = delete;

    /// The rules in the order in which they were given. A setting belongs to the last rule of its kind before it; one
    /// before all of them belongs to the first. Kept rules are inserted where they are named. Saves the rules if
    /// requested.
    /// @throws UsageError for a text that makes no sense, a setting without its rule, and rules that cannot be kept.
    [[nodiscard]] Rename::Rules Make() const;
    /// Whether the rules are to be saved.
    [[nodiscard]] bool Keeps() const { return m_saveAs.has_value(); }
    /// When rules are saved: the other options of the call that choose, sort, place or number, which are not saved with
    /// them, separated by commas.
    [[nodiscard]] std::string NotKept() const;

private:
    CLI::App& m_command;
    std::optional<std::string> m_saveAs;
};

/// The rules of a text of kept rules (rename/OptionLines.h).
/// @throws UsageError for one that makes no sense, with the number of the line if it is known.
[[nodiscard]] Rename::Rules MakeKeptRules(std::string_view text);

} // namespace VyrHost::Cli
