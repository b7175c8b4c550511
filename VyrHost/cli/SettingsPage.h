/// @file
/// The option --open-settings, with which a command only opens a page of the system's settings.
#pragma once

namespace CLI {
class App;
}

struct HWND__; // NOLINT(bugprone-reserved-identifier): the system's own tag

namespace VyrHost::Cli {

/// A page of the system's settings.
struct SettingsPage
{
    /// For people: "this system's list of programs".
    const char* name;
    /// The library's operation that opens it; its result is not 0 when the page was opened.
    int (*open)(HWND__* owner);
};

/// Declares the option. `isAsked` is set by it.
void AddOpenSettings(CLI::App& command, const char* description, bool& isAsked);

/// Opens `page`.
/// @return the program's exit code: Blocked, with a message, where the system has no such page.
/// @throws UsageError when `command` has other options or names, too.
[[nodiscard]] int OpenSettings(const CLI::App& command, const SettingsPage& page);

} // namespace VyrHost::Cli
