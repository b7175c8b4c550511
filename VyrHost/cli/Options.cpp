// Declares and checks options.
#include <VyrHost/cli/Options.h>

#include <VyrHost/text/Errors.h>

#include <CLI/CLI.hpp>

namespace VyrHost::Cli {

void AddText(CLI::App& command, const char* name, std::optional<std::string>& text, const char* value, const char* help,
             const char* group)
{
    const auto take = [&text](const std::string& given) {
        text = given;
    };
    command.add_option_function<std::string>(name, take, help)->type_name(value)->group(group);
}

CLI::Option& AddTexts(CLI::App& command, const char* name, const char* values, const std::string& help,
                      const char* group, int count)
{
    return *command.add_option(name, help)
                ->type_name(values)
                ->type_size(count)
                ->expected(1)
                ->allow_extra_args(false)
                ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
                ->group(group);
}

std::vector<CString> TextsOf(const CLI::App& command, const char* name)
{
    std::vector<CString> texts;
    for (const std::string& value : command.get_option(name)->results())
        texts.push_back(FromParser(value));
    return texts;
}

void AddFlag(CLI::App& command, const char* name, bool& flag, const char* help, const char* group)
{
    command.add_flag(name, flag, help)->group(group);
}

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
