// Declares and reads the options of "vyr rename" beside the rules.
#include <VyrHost/cli/RenameOptions.h>

#include <VyrHost/cli/ArgumentText.h>
#include <VyrHost/cli/OptionPairs.h>
#include <VyrHost/collect/Wildcard.h>
#include <VyrHost/rename/LiteralText.h>
#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/UsageError.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <limits>
#include <utility>

namespace VyrHost::Cli {

namespace {

/// A word of an option and what it stands for.
template <class Value>
using Words = std::vector<std::pair<std::string, Value>>;

/// What the word `text` stands for; the first of `words` when the option is not given.
template <class Value>
Value ReadWord(const std::optional<std::string>& text, const char* option, const Words<Value>& words)
{
    if (!text)
        return words.front().second;
    std::string expected;
    for (const auto& [word, value] : words) {
        if (*text == word)
            return value;
        expected.append(expected.empty() ? "" : ", ").append(word);
    }
    Text::RefuseValue(option, FromParser(*text), "one of " + expected + " is expected");
}

int ReadNumber(const std::optional<std::string>& text, int usual, const char* option)
{
    return text ? Rename::ParseNumber(FromParser(*text), std::numeric_limits<int>::min(), option) : usual;
}

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

constexpr const char* NamesItself = "--pairs names the entries itself";
constexpr const char* GivesNames = "--pairs gives each new name itself";

constexpr ExclusivePair Exclusive[] = {
    {"--json", "--quiet"},
    {"--stdin", "--stdin0"},
    {"--pairs", "PATH", NamesItself},
    {"--pairs", "--stdin", NamesItself},
    {"--pairs", "--stdin0", NamesItself},
    {"--pairs", "--recursive", NamesItself},
    {"--pairs", "--include", NamesItself},
    {"--pairs", "--exclude", NamesItself},
    {"--pairs", "--modified", NamesItself},
    {"--pairs", "--created", NamesItself},
    {"--pairs", "--taken", NamesItself},
    {"--pairs", "--size", NamesItself},
    {"--pairs", "--edit", GivesNames},
    {"--pairs", "--together", GivesNames},
    {"--pairs", "--number-per-folder", GivesNames},
    {"--pairs", "--sort", "the order of the pairs counts"},
    {"--pairs", "--descending", "the order of the pairs counts"},
};

constexpr DependentOption Dependent[] = {
    {"--only", "--recursive"},
    {"--number-per-folder", "--number"},
};

} // namespace

RenameOptions::RenameOptions(CLI::App& command) : m_command(command), m_choice(command)
{
    AddSources(command);
    AddOrder(command);
    AddConflicts(command);
    AddOutput(command);
}

void RenameOptions::AddSources(CLI::App& command)
{
    constexpr const char* Group = "What to rename";
    command.add_option("PATH", m_paths, "Files and folders to rename; * and ? match names where the shell leaves them")
        ->type_name("");
    AddFlag(command, "-r,--recursive", m_recursive, "Rename what is below a folder instead of the folder itself",
            Group);
    AddText(command, "--only", m_pick, "files|folders|all", "With --recursive: what is renamed (files)", Group);
    AddFlag(command, "--hidden", m_hidden, "With --recursive and wildcards: names that begin with a dot, too", Group);
    AddFlag(command, "--stdin", m_lines, "Read names from the standard input, one a line", Group);
    AddFlag(command, "--stdin0", m_terminated, "Read names from the standard input, each ended by a NUL", Group);
    AddText(command, "--pairs", m_pairs, "FILE",
            "Read pairs of old and new names, separated by a comma, a semicolon or a tab; - is the standard input",
            Group);
    AddFlag(command, "--edit", m_edit, "Look through the new names in your editor ($VISUAL, $EDITOR)", Group);
}

void RenameOptions::AddOrder(CLI::App& command)
{
    constexpr const char* Group = "Order and numbers";
    AddText(command, "--sort", m_sort, "given|name|date|picture-date|size",
            "The order of the list; date is that of the last change (given)", Group);
    AddFlag(command, "--descending", m_isDescending, "Reverse the order", Group);
    AddFlag(command, "--number-per-folder", m_countsPerFolder, "Start the numbers anew in each folder", Group);
    AddFlag(command, "--together", m_together,
            "Give files that differ in their extensions alone (raw, JPEG, sidecar) one new name, by the first date of "
            "--date-from that one of them has",
            Group);
}

void RenameOptions::AddConflicts(CLI::App& command)
{
    constexpr const char* Group = "When a name is taken";
    AddText(command, "--on-conflict", m_onConflict, "number|skip|fail",
            "Number the name where the rules allow that (the default), skip the entry, or rename nothing at all",
            Group);
    AddText(command, "--conflict-pattern", m_conflictPattern, "TEXT", "What is put in; ? is the number (\" (?)\")",
            Group);
    AddText(command, "--conflict-digits", m_conflictDigits, "N",
            "Least width of the number, 0 to 255, filled up with zeros", Group);
    AddText(command, "--conflict-position", m_conflictPosition, "after|before", "Where it goes (after the name)",
            Group);
    AddText(command, "--conflict-start", m_conflictStart, "N", "The first number (1)", Group);
    AddText(command, "--conflict-step", m_conflictStep, "N", "From one number to the next (1)", Group);
}

void RenameOptions::AddOutput(CLI::App& command)
{
    constexpr const char* Group = "What is done and shown";
    AddFlag(command, "--apply", m_apply, "Rename; without it the result is only shown", Group);
    AddFlag(command, "--json", m_json, "Write one JSON object for each entry: from, to, status, reason", Group);
    AddFlag(command, "-q,--quiet", m_quiet, "Show only what does not get its new name", Group);
}

RenameRequest RenameOptions::Read() const
{
    CheckOptionPairs(m_command, Exclusive, Dependent);
    RenameRequest request;
    request.sources = ReadSources();
    if (m_pairs)
        request.pairs = FromParser(*m_pairs);
    request.order = ReadOrder();
    request.counting = m_countsPerFolder ? Rename::Counting::EachFolder : Rename::Counting::WholeList;
    request.together = m_together;
    request.conflicts = ReadConflicts();
    request.edit = m_edit;
    request.apply = m_apply;
    request.json = m_json;
    request.quiet = m_quiet;
    return request;
}

Collect::SourceSettings RenameOptions::ReadSources() const
{
    Collect::SourceSettings settings;
    for (const std::string& path : m_paths)
        settings.paths.push_back(FromParser(path));
    if (!m_pairs && m_paths.empty() && !m_lines && !m_terminated)
        throw Text::UsageError("nothing to rename is named");
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

Collect::SortSettings RenameOptions::ReadOrder() const
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

bool RenameOptions::AsksForNumbering() const
{
    return m_conflictPattern || m_conflictDigits || m_conflictPosition || m_conflictStart || m_conflictStep;
}

Rename::ConflictSettings RenameOptions::ReadConflicts() const
{
    Rename::ConflictSettings settings;
    settings.mode = ReadWord<Rename::OnConflict>(m_onConflict, "--on-conflict",
                                                 {{"number", Rename::OnConflict::Number},
                                                  {"skip", Rename::OnConflict::Skip},
                                                  {"fail", Rename::OnConflict::Refuse}});
    if (AsksForNumbering() && settings.mode != Rename::OnConflict::Number)
        throw Text::UsageError("--on-conflict=" + *m_onConflict +
                               " numbers nothing; no other --conflict option goes with it");
    ReadNumbering(settings);
    return settings;
}

void RenameOptions::ReadNumbering(Rename::ConflictSettings& settings) const
{
    VyrLibraryFuncs::NameFuncs::CONFLICTITEM& numbering = settings.numbering;
    numbering.numberFormat = m_conflictPattern ? FromParser(*m_conflictPattern) : CString(u" (?)");
    Rename::RequireNameText(numbering.numberFormat, "--conflict-pattern");
    if (numbering.numberFormat.Find(u"?") < 0)
        throw Text::UsageError("--conflict-pattern: it has no ? for the number, so it could never give a free name");
    if (m_conflictDigits)
        settings.digits = Rename::ParseDigits(FromParser(*m_conflictDigits), "--conflict-digits");
    numbering.position = ReadWord<int>(m_conflictPosition, "--conflict-position", {{"after", 1}, {"before", 0}});
    numbering.startNumber = ReadNumber(m_conflictStart, 1, "--conflict-start");
    numbering.step = ReadNumber(m_conflictStep, 1, "--conflict-step");
    if (numbering.step == 0)
        throw Text::UsageError("--conflict-step: a step of 0 could never give a free name");
}

} // namespace VyrHost::Cli
