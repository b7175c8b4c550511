// Opens pages of the system's settings.
#include <VyrHost/cli/SettingsPage.h>

#include <VyrHost/cli/Messages.h>
#include <VyrHost/text/Errors.h>

#include <CLI/CLI.hpp>

#include <string>

namespace VyrHost::Cli {

namespace {

constexpr const char* optionName = "--open-settings";

} // namespace

void AddOpenSettings(CLI::App& command, const char* description, bool& isAsked)
{
    command.add_flag(optionName, isAsked, description);
}

int OpenSettings(const CLI::App& command, const SettingsPage& page)
{
    for (const CLI::Option* const option : command.get_options())
        if (option->count() > 0 && option->get_name() != optionName)
            throw Text::UsageError("--open-settings and " + option->get_name() +
                                   " exclude each other: --open-settings only opens a page of the system");
    if (page.open(nullptr) != 0)
        return ExitCode::success;
    Complain(page.name + std::string(" cannot be opened"));
    return ExitCode::blocked;
}

} // namespace VyrHost::Cli
