// Declares and reads the options that choose files.
#include <VyrHost/cli/SourceOptions.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/HelpTopics.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/collect/Choice.h>
#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace VyrHost::Cli {

namespace {

constexpr const char* choiceGroup = OptionGroup::choice;
constexpr const char* oneDate = "one date in a call";

constexpr ExclusivePair exclusiveDates[] = {
    {"--modified", "--created", oneDate}, {"--modified", "--taken", oneDate}, {"--created", "--taken", oneDate}};

std::string Counted(std::size_t count, const char* one, const char* many)
{
    return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

} // namespace

ChoiceOptions::ChoiceOptions(CLI::App& command) : m_command(command)
{
    AddTexts(command, "--include", "NAMES",
             "Take only these: \"*.jpg\", contains:TEXT, begins:TEXT, ends:TEXT, equals:TEXT; may be given again for "
             "others",
             choiceGroup);
    AddTexts(command, "--exclude", "NAMES", "Leave these out, in the same forms, and do not enter such folders",
             choiceGroup);
    command.add_flag("--match-case", m_matchCase, "Tell upper and lower case apart in --include and --exclude")
        ->group(choiceGroup);
    AddText(command, "--modified", m_modified, "RANGE",
            "Only what was last changed then: today, yesterday, this-week, last-week, this-month, last-month, "
            "this-year, last-year, or FROM..TO, such as 2024-01-05..2024-02-29; either may be left out",
            choiceGroup);
    AddText(command, "--created", m_created, "RANGE", "Only what was created then", choiceGroup);
    AddText(command, "--taken", m_taken, "RANGE", "Only pictures that were taken then", choiceGroup);
    AddText(command, "--size", m_size, "RANGE",
            "Only what has this size: empty, tiny (to 16 KB), small (to 1 MB), medium (to 128 MB), large (to 1 GB), "
            "huge (to 4 GB), giant, or FROM..TO, such as 1.5MB.. or 500..16KB",
            choiceGroup);
}

Collect::Choice ChoiceOptions::Read() const
{
    CheckOptionPairs(m_command, exclusiveDates);
    Collect::ChoiceTexts texts;
    texts.include = TextsOf(m_command, "--include");
    texts.exclude = TextsOf(m_command, "--exclude");
    texts.matchCase = m_matchCase;
    if (m_matchCase && texts.include.empty() && texts.exclude.empty())
        throw Text::UsageError(WithoutEffect("--match-case", "--include or --exclude"));
    const auto takeDates = [&texts](const std::optional<std::string>& dates, Collect::ChoiceDate target) {
        if (dates) {
            texts.dateTarget = target;
            texts.dates = FromParser(*dates);
        }
    };
    takeDates(m_modified, Collect::ChoiceDate::Modified);
    takeDates(m_created, Collect::ChoiceDate::Created);
    takeDates(m_taken, Collect::ChoiceDate::PictureTaken);
    if (m_size)
        texts.sizes = FromParser(*m_size);
    return Collect::Choice(texts);
}

std::string LeftOutNotice(const Collect::CollectedEntries& collected)
{
    std::string text;
    if (collected.leftOut > 0)
        text = Counted(collected.leftOut, "entry was", "entries were") + " left out";
    if (collected.notEntered > 0)
        text +=
            (text.empty() ? "" : "; ") + Counted(collected.notEntered, "folder was", "folders were") + " not entered";
    return text.empty() ? text : text + ".\n";
}

Collect::CollectedEntries TakeEntries(const Collect::SourceSettings& sources, Collect::SortSettings order)
{
    Collect::CollectedEntries collected = Collect::CollectEntries(sources);
    for (const CString& problem : collected.problems)
        Complain(Text::SafeText(problem));
    Collect::Sort(collected.list, order);
    return collected;
}

int CodeOf(const Collect::CollectedEntries& collected)
{
    return collected.problems.empty() ? ExitCode::success : ExitCode::partly;
}

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
    AddText(command, "--max-depth", m_maxDepth, "N",
            "With --recursive: go N folders deep; 1 takes what is in a folder itself", group.c_str());
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
    constexpr DependentOption dependent[] = {{"--only", "--recursive"}, {"--max-depth", "--recursive"}};
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
    if (m_maxDepth)
        settings.maxDepth = Rename::ParseNumber(FromParser(*m_maxDepth), 1, "--max-depth");
    settings.hidden = m_hidden;
    settings.choice = m_choice.Read();
    if (m_lines || m_terminated)
        settings.input = m_lines ? Collect::InputNames::Lines : Collect::InputNames::Terminated;
    return settings;
}

OrderOptions::OrderOptions(CLI::App& command, const char* group)
{
    AddText(command, "--sort", m_sort, "given|name|modified|taken|size",
            "The order of the list (given); date is modified, picture-date is taken", group);
    AddFlag(command, "--descending", m_isDescending, "Reverse the order", group);
}

Collect::SortSettings OrderOptions::Read() const
{
    Collect::SortSettings order;
    order.key = ReadWord<Collect::SortKey>(m_sort, "--sort",
                                           {{"given", Collect::SortKey::Given},
                                            {"name", Collect::SortKey::Name},
                                            {"modified", Collect::SortKey::Modified},
                                            {"taken", Collect::SortKey::Taken},
                                            {"size", Collect::SortKey::Size},
                                            {"date", Collect::SortKey::Modified},
                                            {"picture-date", Collect::SortKey::Taken}});
    order.isDescending = m_isDescending;
    return order;
}

} // namespace VyrHost::Cli
