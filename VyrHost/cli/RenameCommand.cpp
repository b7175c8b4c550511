// Declares "vyr rename" and its options, and makes a request of what was given.
#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/cli/RenameRun.h>
#include <VyrHost/cli/RuleOptions.h>
#include <VyrHost/cli/SourceOptions.h>
#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/rename/TemplateTokens.h>
#include <VyrHost/text/Errors.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace VyrHost::Cli {

namespace {

int ReadNumber(const std::optional<std::string>& text, int usual, const char* option)
{
    return text ? Rename::ParseNumber(FromParser(*text), std::numeric_limits<int>::min(), option) : usual;
}

constexpr const char* orderGroup = "Order and numbers";
constexpr const char* namesItself = "--pairs names the entries itself";
constexpr const char* givesNames = "--pairs gives each new name itself";

constexpr ExclusivePair exclusive[] = {
    {"--json", "--quiet"},
    {"--pairs", "PATH", namesItself},
    {"--pairs", "--stdin", namesItself},
    {"--pairs", "--stdin0", namesItself},
    {"--pairs", "--recursive", namesItself},
    {"--pairs", "--include", namesItself},
    {"--pairs", "--exclude", namesItself},
    {"--pairs", "--modified", namesItself},
    {"--pairs", "--created", namesItself},
    {"--pairs", "--taken", namesItself},
    {"--pairs", "--size", namesItself},
    {"--pairs", "--edit", givesNames},
    {"--pairs", "--together", givesNames},
    {"--pairs", "--number-per-folder", givesNames},
    {"--pairs", "--sort", "the order of the pairs counts"},
    {"--pairs", "--descending", "the order of the pairs counts"},
};

constexpr DependentOption dependent[] = {
    {"--number-per-folder", "--number"},
};

/// docs/date-time-formats.md says the same; a test compares them.
constexpr const char* dateLetters = "Letters of --date (text goes in apostrophes):\n"
                                    "  yyyy yy        year              HH H  hour, 0 to 23\n"
                                    "  MMMM MMM MM M  month             hh h  hour, 1 to 12\n"
                                    "  dd d           day               mm m  minute\n"
                                    "  EEEE EEE       day of the week   ss s  second\n"
                                    "                                   a     before or after noon\n\n";

/// Adds the options to a command, and reads what was given. Not to be moved once it has added them.
class RenameOptions
{
public:
    explicit RenameOptions(CLI::App& command);
    RenameOptions(const RenameOptions&) = delete;
    RenameOptions& operator=(const RenameOptions&) = delete;

    /// The request without its rules.
    /// @throws UsageError for options that contradict each other and values that make no sense.
    [[nodiscard]] RenameRequest Read() const;

    /// Whether it is said how a name that is taken is numbered.
    [[nodiscard]] bool AsksForNumbering() const;

private:
    void AddSources(CLI::App& command);
    void AddOrder(CLI::App& command);
    void AddConflicts(CLI::App& command);
    void AddOutput(CLI::App& command);
    [[nodiscard]] Rename::ConflictSettings ReadConflicts() const;
    void ReadNumbering(Rename::ConflictSettings& settings) const;

    CLI::App& m_command;
    SourceOptions m_sources;
    OrderOptions m_order;
    std::optional<std::string> m_pairs;
    std::optional<std::string> m_onConflict;
    std::optional<std::string> m_conflictPattern;
    std::optional<std::string> m_conflictDigits;
    std::optional<std::string> m_conflictPosition;
    std::optional<std::string> m_conflictStart;
    std::optional<std::string> m_conflictStep;
    bool m_countsPerFolder = false;
    bool m_together = false;
    bool m_edit = false;
    bool m_apply = false;
    bool m_json = false;
    bool m_quiet = false;
};

/// Previews a rename, or does it.
class RenameCommand final : public Command
{
public:
    explicit RenameCommand(CLI::App& program);

    [[nodiscard]] int Run() const override;

private:
    RuleOptions m_rules;
    RenameOptions m_options;
};

} // namespace

RenameOptions::RenameOptions(CLI::App& command)
    : m_command(command), m_sources(command, "rename"), m_order(command, orderGroup)
{
    AddSources(command);
    AddOrder(command);
    AddConflicts(command);
    AddOutput(command);
}

void RenameOptions::AddSources(CLI::App& command)
{
    constexpr const char* group = "What to rename";
    AddText(command, "--pairs", m_pairs, "FILE",
            "Read pairs of old and new names, separated by a comma, a semicolon or a tab; - is the standard input",
            group);
    AddFlag(command, "--edit", m_edit, "Look through the new names in your editor ($VISUAL, $EDITOR)", group);
}

void RenameOptions::AddOrder(CLI::App& command)
{
    AddFlag(command, "--number-per-folder", m_countsPerFolder, "Start the numbers anew in each folder", orderGroup);
    AddFlag(command, "--together", m_together,
            "Give files that differ in their extensions alone (raw, JPEG, sidecar) one new name, by the first date of "
            "--date-from that one of them has",
            orderGroup);
}

void RenameOptions::AddConflicts(CLI::App& command)
{
    constexpr const char* group = "When a name is taken";
    AddText(command, "--on-conflict", m_onConflict, "number|skip|fail",
            "Number the name where the rules allow that (the default), skip the entry, or rename nothing at all",
            group);
    AddText(command, "--conflict-pattern", m_conflictPattern, "TEXT", "What is put in; ? is the number (\" (?)\")",
            group);
    AddText(command, "--conflict-digits", m_conflictDigits, "N",
            "Least width of the number, 0 to 255, filled up with zeros", group);
    AddText(command, "--conflict-position", m_conflictPosition, "after|before", "Where it goes (after the name)",
            group);
    AddText(command, "--conflict-start", m_conflictStart, "N", "The first number (1)", group);
    AddText(command, "--conflict-step", m_conflictStep, "N", "From one number to the next (1)", group);
}

void RenameOptions::AddOutput(CLI::App& command)
{
    constexpr const char* group = "What is done and shown";
    AddFlag(command, "--apply", m_apply, "Rename; without it the result is only shown", group);
    AddFlag(command, "--json", m_json, "Write one JSON object for each entry: from, to, status, reason", group);
    AddFlag(command, "-q,--quiet", m_quiet, "Show only what does not get its new name", group);
}

RenameRequest RenameOptions::Read() const
{
    CheckOptionPairs(m_command, exclusive, dependent);
    RenameRequest request;
    if (!m_pairs && !m_sources.NamesAny())
        throw Text::UsageError("nothing to rename is named");
    request.sources = m_sources.Read();
    if (m_pairs)
        request.pairs = FromParser(*m_pairs);
    request.order = m_order.Read();
    request.counting = m_countsPerFolder ? Rename::Counting::EachFolder : Rename::Counting::WholeList;
    request.together = m_together;
    request.conflicts = ReadConflicts();
    request.edit = m_edit;
    request.apply = m_apply;
    request.json = m_json;
    request.quiet = m_quiet;
    return request;
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
    using Position = VyrLibraryFuncs::NameFuncs::ConflictPosition;
    numbering.position = static_cast<int>(ReadWord<Position>(
        m_conflictPosition, "--conflict-position", {{"after", Position::AfterName}, {"before", Position::BeforeName}}));
    numbering.startNumber = ReadNumber(m_conflictStart, 1, "--conflict-start");
    numbering.step = ReadNumber(m_conflictStep, 1, "--conflict-step");
    if (numbering.step == 0)
        throw Text::UsageError("--conflict-step: a step of 0 could never give a free name");
}

RenameCommand::RenameCommand(CLI::App& program)
    : Command(*program.add_subcommand("rename", "Rename files and folders by rules; shows the result first")),
      m_rules(m_command), m_options(m_command)
{
    m_command.footer(std::string(dateLetters) +
                     "Without --apply nothing is renamed. What --apply renamed, \"vyr undo\" undoes.\n\n" +
                     RenameExamples() + "\n" + ExitCode::table);
}

int RenameCommand::Run() const
{
    RenameRequest request = m_options.Read();
    request.rules = m_rules.Make();
    if (request.pairs && !request.rules.empty())
        throw Text::UsageError("--pairs gives each new name itself; rules do not go with it");
    if (!request.pairs && !request.edit && request.rules.empty())
        throw Text::UsageError("no rule is given, such as --number or --date");
    const bool mayNumber = std::any_of(request.rules.begin(), request.rules.end(),
                                       [](const std::unique_ptr<Rename::Rule>& rule) { return rule->MayNumber(); });
    if (m_options.AsksForNumbering() && !mayNumber)
        throw Text::UsageError(
            "--conflict-pattern, -digits, -position, -start and -step say how names are numbered, which is "
            "not done to names that are given or come of --replace, --case, --extension-case and "
            "--drop-extension alone");
    return RunRename(request);
}

std::unique_ptr<Command> AddRenameCommand(CLI::App& program)
{
    return std::make_unique<RenameCommand>(program);
}

} // namespace VyrHost::Cli
