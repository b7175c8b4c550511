// Declares options that hold a text or nothing.
#include <VyrHost/cli/TextOptions.h>

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

void AddFlag(CLI::App& command, const char* name, bool& flag, const char* help, const char* group)
{
    command.add_flag(name, flag, help)->group(group);
}

} // namespace VyrHost::Cli
