// Refuses options that contradict each other or change nothing.
#include <VyrHost/cli/OptionPairs.h>

#include <VyrHost/text/UsageError.h>

#include <CLI/CLI.hpp>

namespace VyrHost::Cli {

namespace {

bool IsGiven(const CLI::App& command, const char* option)
{
    return command.get_option(option)->count() > 0;
}

} // namespace

void CheckOptionPairs(const CLI::App& command, std::span<const ExclusivePair> exclusive,
                      std::span<const DependentOption> dependent)
{
    for (const auto& [option, other, why] : exclusive)
        if (IsGiven(command, option) && IsGiven(command, other))
            throw Text::UsageError(std::string(option) + " and " + other + " exclude each other" +
                                   (why ? std::string(": ") + why : ""));
    for (const auto& [option, needed] : dependent)
        if (IsGiven(command, option) && !IsGiven(command, needed))
            throw Text::UsageError(WithoutEffect(option, needed));
}

std::string WithoutEffect(const std::string& option, const std::string& needed)
{
    return option + " changes nothing without " + needed + ", which is not given";
}

} // namespace VyrHost::Cli
