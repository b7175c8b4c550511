/// @file
/// The options that are rules, and the settings that belong to them.
#pragma once

#include <VyrHost/rename/Rule.h>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Adds an option for each rule, and for their settings, to a command and makes rules of what was given.
class RuleOptions
{
public:
    explicit RuleOptions(CLI::App& command);

    /// The rules in the order in which they were given. A setting belongs to the rule of its kind before it; one that
    /// stands before all of them belongs to the first.
    /// @throws UsageError for a text that makes no sense, and a setting without its rule.
    [[nodiscard]] Rename::Rules Make() const;

private:
    CLI::App& m_command;
};

} // namespace VyrHost::Cli
