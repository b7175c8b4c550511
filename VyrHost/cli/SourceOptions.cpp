// Declares and reads the options that name files.
#include <VyrHost/cli/SourceOptions.h>

#include <VyrHost/cli/OptionPairs.h>
#include <VyrHost/cli/TextOptions.h>
#include <VyrHost/collect/Wildcard.h>
#include <VyrHost/text/UsageError.h>

#include <CLI/CLI.hpp>

#include <algorithm>

namespace VyrHost::Cli {

SourceOptions::SourceOptions(CLI::App& command, const std::string& verb) : m_command(command), m_choice(command)
{
    const std::string group = "What to " + verb;
    command
        .add_option("PATH", m_paths,
                    "Files and folders to " + verb + "; * and ? match names where the shell leaves them")
        ->type_name("");
    AddFlag(command, "-r,--recursive", m_recursive, "Take what is below a folder instead of the folder itself",
            group.c_str());
    AddText(command, "--only", m_pick, "files|folders|all", "With --recursive: what is taken (files)", group.c_str());
    AddFlag(command, "--hidden", m_hidden, "With --recursive and wildcards: names that begin with a dot, too",
            group.c_str());
    AddFlag(command, "--stdin", m_lines, "Read names from the standard input, one a line", group.c_str());
    AddFlag(command, "--stdin0", m_terminated, "Read names from the standard input, each ended by a NUL",
            group.c_str());
}

bool SourceOptions::NamesAny() const
{
    return !m_paths.empty() || m_lines || m_terminated;
}

Collect::SourceSettings SourceOptions::Read() const
{
    constexpr ExclusivePair exclusive[] = {{"--stdin", "--stdin0"}};
    constexpr DependentOption dependent[] = {{"--only", "--recursive"}};
    CheckOptionPairs(m_command, exclusive, dependent);
    Collect::SourceSettings settings;
    for (const std::string& path : m_paths)
        settings.paths.push_back(FromParser(path));
    if (m_hidden && !m_recursive && std::none_of(settings.paths.begin(), settings.paths.end(), Collect::IsPattern))
        throw Text::UsageError(WithoutEffect("--hidden", "--recursive or a wildcard"));
    settings.recursive = m_recursive;
    settings.pick = ReadWord<Collect::Pick>(
        m_pick, "--only",
        {{"files", Collect::Pick::Files}, {"folders", Collect::Pick::Folders}, {"all", Collect::Pick::All}});
    settings.hidden = m_hidden;
    settings.choice = m_choice.Read();
    if (m_lines || m_terminated)
        settings.input = m_lines ? Collect::InputNames::Lines : Collect::InputNames::Terminated;
    return settings;
}

OrderOptions::OrderOptions(CLI::App& command, const char* group)
{
    AddText(command, "--sort", m_sort, "given|name|date|picture-date|size",
            "The order of the list; date is that of the last change (given)", group);
    AddFlag(command, "--descending", m_isDescending, "Reverse the order", group);
}

Collect::SortSettings OrderOptions::Read() const
{
    Collect::SortSettings order;
    order.key = ReadWord<Collect::SortKey>(m_sort, "--sort",
                                           {{"given", Collect::SortKey::Given},
                                            {"name", Collect::SortKey::Name},
                                            {"date", Collect::SortKey::Modified},
                                            {"picture-date", Collect::SortKey::Taken},
                                            {"size", Collect::SortKey::Size}});
    order.isDescending = m_isDescending;
    return order;
}

} // namespace VyrHost::Cli
