// Declares "vyr rename" and its options, and makes a request of what was given.
#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/cli/RenameRun.h>
#include <VyrHost/cli/ReportOptions.h>
#include <VyrHost/cli/RuleOptions.h>
#include <VyrHost/cli/SourceOptions.h>
#include <VyrHost/cli/TokensTopic.h>
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
constexpr const char* dateLetters = "Letters of --date and of <Taken:FORMAT> (text goes in apostrophes):\n"
                                    "  yyyy yy        year              HH H  hour, 0 to 23\n"
                                    "  MMMM MMM MM M  month             hh h  hour, 1 to 12\n"
                                    "  dd d           day               mm m  minute\n"
                                    "  EEEE EEE       day of the week   ss s  second\n"
                                    "  SSS            milliseconds      a     before or after noon\n\n";

/// The options that say what becomes of an entry whose new name is taken. Not to be moved once it has added them.
class ConflictOptions
{
public:
    explicit ConflictOptions(CLI::App& command);
    ConflictOptions(const ConflictOptions&) = delete;
    ConflictOptions& operator=(const ConflictOptions&) = delete;

    /// @throws UsageError
    [[nodiscard]] Rename::ConflictSettings Read() const;
    /// Whether an option says how a name that is taken is numbered.
    [[nodiscard]] bool AskForNumbering() const;

private:
    void ReadNumbering(Rename::ConflictSettings& settings) const;

    std::optional<std::string> m_onConflict;
    std::optional<std::string> m_pattern;
    std::optional<std::string> m_digits;
    std::optional<std::string> m_position;
    std::optional<std::string> m_start;
    std::optional<std::string> m_step;
};

/// Previews a rename, or does it.
class RenameCommand final : public Command
{
public:
    explicit RenameCommand(CLI::App& program);

    [[nodiscard]] int Run() const override;

private:
    [[nodiscard]] RenameRequest Read() const;

    RuleOptions m_rules;
    SourceOptions m_sources;
    OrderOptions m_order;
    ConflictOptions m_conflicts;
    RunOptions m_run;
    ReportOptions m_page;
    std::optional<std::string> m_pairs;
    bool m_countsPerFolder = false;
    bool m_together = false;
    bool m_edit = false;
};

} // namespace

ConflictOptions::ConflictOptions(CLI::App& command)
{
    constexpr const char* group = "When a name is taken";
    AddText(command, "--on-conflict", m_onConflict, "number|skip|fail",
            "Number the name where the rules allow that (the default), skip the entry, or rename nothing at all",
            group);
    AddText(command, "--conflict-pattern", m_pattern, "TEXT", "What is put in; ? is the number (\" (?)\")", group);
    AddText(command, "--conflict-digits", m_digits, "N", "Least width of the number, 0 to 255, filled up with zeros",
            group);
    AddText(command, "--conflict-position", m_position, "after|before", "Where it goes (after the name)", group);
    AddText(command, "--conflict-start", m_start, "N", "The first number (1)", group);
    AddText(command, "--conflict-step", m_step, "N", "From one number to the next (1)", group);
}

bool ConflictOptions::AskForNumbering() const
{
    return m_pattern || m_digits || m_position || m_start || m_step;
}

Rename::ConflictSettings ConflictOptions::Read() const
{
    Rename::ConflictSettings settings;
    settings.mode = ReadWord<Rename::OnConflict>(m_onConflict, "--on-conflict",
                                                 {{"number", Rename::OnConflict::Number},
                                                  {"skip", Rename::OnConflict::Skip},
                                                  {"fail", Rename::OnConflict::Refuse}});
    if (AskForNumbering() && settings.mode != Rename::OnConflict::Number)
        throw Text::UsageError("--on-conflict=" + *m_onConflict +
                               " numbers nothing; no other --conflict option goes with it");
    ReadNumbering(settings);
    return settings;
}

void ConflictOptions::ReadNumbering(Rename::ConflictSettings& settings) const
{
    using Position = VyrLibraryFuncs::NameFuncs::ConflictPosition;
    VyrLibraryFuncs::NameFuncs::CONFLICTITEM& numbering = settings.numbering;
    numbering.numberFormat = m_pattern ? FromParser(*m_pattern) : CString(u" (?)");
    Rename::RequireNameText(numbering.numberFormat, "--conflict-pattern");
    if (numbering.numberFormat.Find(u"?") < 0)
        throw Text::UsageError("--conflict-pattern: it has no ? for the number, so it could never give a free name");
    if (m_digits)
        settings.digits = Rename::ParseDigits(FromParser(*m_digits), "--conflict-digits");
    numbering.position = static_cast<int>(ReadWord<Position>(
        m_position, "--conflict-position", {{"after", Position::AfterName}, {"before", Position::BeforeName}}));
    numbering.startNumber = ReadNumber(m_start, 1, "--conflict-start");
    numbering.step = ReadNumber(m_step, 1, "--conflict-step");
    if (numbering.step == 0)
        throw Text::UsageError("--conflict-step: a step of 0 could never give a free name");
}

RenameCommand::RenameCommand(CLI::App& program)
    : Command(*program.add_subcommand("rename", "Rename files and folders by rules; shows the result first")),
      m_rules(m_command), m_sources(m_command, "rename"), m_order(m_command, orderGroup), m_conflicts(m_command),
      m_run(m_command, {"Rename; without it the result is only shown",
                        "Write one JSON object for each entry: from, to, status, reason",
                        "Show only what does not get its new name"}),
      m_page(m_command, RowsAbout::Files)
{
    constexpr const char* sourceGroup = "What to rename";
    AddText(m_command, "--pairs", m_pairs, "FILE",
            "Read pairs of old and new names, separated by a comma, a semicolon or a tab; - is the standard input",
            sourceGroup);
    AddFlag(m_command, "--edit", m_edit, "Look through the new names in your editor ($VISUAL, $EDITOR)", sourceGroup);
    AddFlag(m_command, "--number-per-folder", m_countsPerFolder, "Start the numbers anew in each folder", orderGroup);
    AddFlag(m_command, "--together", m_together,
            "Give files that differ in their extensions alone (raw, JPEG, sidecar) one new name, by the first date of "
            "--date-from that one of them has",
            orderGroup);
    m_command.footer(
        HelpFooter("rename", std::string(dateLetters) + TokensTopic() +
                                 "Without --apply nothing is renamed. What --apply renamed, \"vyr undo\" undoes.\n\n"));
}

RenameRequest RenameCommand::Read() const
{
    RenameRequest request;
    request.style = m_run.Read();
    m_page.Check();
    request.page = m_page.IsAskedFor() ? &m_page : nullptr;
    CheckOptionPairs(m_command, exclusive, dependent);
    if (!m_pairs && !m_sources.NamesAny())
        throw Text::UsageError("nothing to rename is named");
    request.sources = m_sources.Read();
    if (m_pairs)
        request.pairs = FromParser(*m_pairs);
    request.order = m_order.Read();
    request.counting = m_countsPerFolder ? Rename::Counting::EachFolder : Rename::Counting::WholeList;
    request.together = m_together;
    request.conflicts = m_conflicts.Read();
    request.edit = m_edit;
    request.rules = m_rules.Make();
    return request;
}

int RenameCommand::Run() const
{
    const RenameRequest request = Read();
    if (request.pairs && !request.rules.empty())
        throw Text::UsageError("--pairs gives each new name itself; rules do not go with it");
    if (!request.pairs && !request.edit && request.rules.empty())
        throw Text::UsageError("no rule is given, such as --number or --date");
    const bool mayNumber = std::any_of(request.rules.begin(), request.rules.end(),
                                       [](const std::unique_ptr<Rename::Rule>& rule) { return rule->MayNumber(); });
    if (m_conflicts.AskForNumbering() && !mayNumber)
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
