// Declares and reads the options that say whose registry is looked at.
#include <VyrHost/cli/PlaceOptions.h>

#include <VyrHost/cli/ArgumentText.h>
#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/OptionPairs.h>

#include <CLI/CLI.hpp>

#include <utility>

namespace VyrHost::Cli {

namespace {

using Inventory::PlaceKind;

constexpr const char* Group = "Where to look";
constexpr const char* WhyOne = "one place is looked at";

constexpr ExclusivePair Exclusive[] = {
    {"WHERE", "--disk", WhyOne},   {"WHERE", "--hives", WhyOne}, {"WHERE", "--wine", WhyOne},
    {"--disk", "--hives", WhyOne}, {"--disk", "--wine", WhyOne}, {"--hives", "--wine", WhyOne},
};

void AddFolder(CLI::App& command, const char* name, std::optional<std::string>& folder, const char* help)
{
    const auto take = [&folder](const std::string& given) {
        folder = given;
    };
    command.add_option_function<std::string>(name, take, help)->type_name("FOLDER")->group(Group);
}

} // namespace

PlaceOptions::PlaceOptions(CLI::App& command) : m_command(command)
{
    command
        .add_option_function<std::string>(
            "WHERE", [this](const std::string& text) { m_where = text; },
            "A mounted Windows disk, a folder of hives, or a Wine prefix; without it this machine on Windows, "
            "elsewhere "
            "the prefix $WINEPREFIX or ~/.wine")
        ->type_name("");
    AddFolder(command, "--disk", m_disk, "The folder is a mounted Windows disk, or its Windows folder");
    AddFolder(command, "--hives", m_hives, "The folder holds hives (SOFTWARE, SYSTEM, NTUSER.DAT, UsrClass.dat)");
    AddFolder(command, "--wine", m_wine, "The folder is a Wine prefix");
}

Inventory::PlaceRequest PlaceOptions::Read() const
{
    CheckOptionPairs(m_command, Exclusive);
    const std::pair<const std::optional<std::string>&, std::optional<PlaceKind>> given[] = {
        {m_where, std::nullopt},
        {m_disk, PlaceKind::Disk},
        {m_hives, PlaceKind::Hives},
        {m_wine, PlaceKind::WinePrefix}};
    Inventory::PlaceRequest request;
    for (const auto& [folder, kind] : given)
        if (folder) {
            request.path = FromParser(*folder);
            request.kind = kind;
        }
    return request;
}

int Complain(const Inventory::Notes& notes)
{
    for (const std::string& warning : notes.warnings)
        Complain(warning);
    for (const std::string& failure : notes.failures)
        Complain(failure);
    return notes.failures.empty() ? ExitCode::Success : ExitCode::Partly;
}

} // namespace VyrHost::Cli
