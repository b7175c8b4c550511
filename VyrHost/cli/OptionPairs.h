/// @file
/// Which options go together.
#pragma once

#include <span>
#include <string>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// Two options, or an option and an argument, that contradict each other.
struct ExclusivePair
{
    const char* option;
    const char* other;
    /// Why, where the two do not tell; else null.
    const char* why = nullptr;
};

/// An option that changes nothing without another one.
struct DependentOption
{
    const char* option;
    const char* needed;
};

/// Looks at what was given of the options of `command`.
/// @throws UsageError for the first pair that does not go together, and the first option that changes nothing.
void CheckOptionPairs(const CLI::App& command, std::span<const ExclusivePair> exclusive,
                      std::span<const DependentOption> dependent = {});

/// What is said of an option that changes nothing without `needed`.
[[nodiscard]] std::string WithoutEffect(const std::string& option, const std::string& needed);

} // namespace VyrHost::Cli
