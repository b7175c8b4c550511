// Reads the options of "vyr rename" into a request.
#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/HelpTopics.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/cli/RenameRun.h>
#include <VyrHost/cli/ReportOptions.h>
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
    {"--pairs", "--into", givesNames},
    {"--pairs", "--max-depth", namesItself},
    {"--pairs", "--sort", "the order of the pairs counts"},
    {"--pairs", "--descending", "the order of the pairs counts"},
};

constexpr DependentOption dependent[] = {
    {"--number-per-folder", "--number"},
};

/// The options for entries whose new names are taken. Must not be moved: the parser refers to its members.
class ConflictOptions
{
public:
    explicit ConflictOptions(CLI::App& command);
    ConflictOptions(const ConflictOptions&) = delete;
    ConflictOptions& operator=(const ConflictOptions&) = delete;

    /// @throws UsageError
    [[nodiscard]] Rename::ConflictSettings Read() const;
    /// Whether an option says how names are numbered.
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
    std::optional<std::string> m_into;
    bool m_removesEmpty = false;
    bool m_together = false;
    bool m_edit = false;
};

} // namespace

ConflictOptions::ConflictOptions(CLI::App& command)
{
    constexpr const char* group = OptionGroup::conflicts;
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
        throw Text::UsageError("--conflict-pattern: it has no ? for the number, so it never gives a free name");
    if (m_digits)
        settings.digits = Rename::ParseDigits(FromParser(*m_digits), "--conflict-digits");
    numbering.position = static_cast<int>(ReadWord<Position>(
        m_position, "--conflict-position", {{"after", Position::AfterName}, {"before", Position::BeforeName}}));
    numbering.startNumber = ReadNumber(m_start, 1, "--conflict-start");
    numbering.step = ReadNumber(m_step, 1, "--conflict-step");
    if (numbering.step == 0)
        throw Text::UsageError("--conflict-step: a step of 0 never gives a free name");
}

RenameCommand::RenameCommand(CLI::App& program)
    : Command(*program.add_subcommand("rename", "Rename files and folders by rules; shows the result first")),
      m_rules(m_command), m_sources(m_command, "rename"), m_order(m_command, OptionGroup::order),
      m_conflicts(m_command), m_run(m_command, {"Rename; without it the result is only shown",
                                                "Write one JSON object for each entry: from, to, status, reason",
                                                "Show only what does not get its new name"}),
      m_page(m_command, RowsAbout::Files)
{
    constexpr const char* sourceGroup = OptionGroup::sources;
    AddText(m_command, "--pairs", m_pairs, "FILE",
            "Read pairs of old and new names, separated by a comma, a semicolon or a tab; - is the standard input",
            sourceGroup);
    AddFlag(m_command, "--edit", m_edit, "Look through the new names in your editor ($VISUAL, $EDITOR)", sourceGroup);
    AddText(m_command, "--into", m_into, "FOLDER",
            "Move the entries into FOLDER, which is made where it is missing, under their new names",
            OptionGroup::where);
    AddFlag(m_command, "--remove-empty", m_removesEmpty, "Remove the folders that this empties", OptionGroup::where);
    AddFlag(m_command, "--number-per-folder", m_countsPerFolder, "Restart the numbers in each folder",
            OptionGroup::order);
    AddFlag(m_command, "--together", m_together,
            "Give files that differ in their extensions alone (raw, JPEG, sidecar) one new name, by the first date of "
            "--date-from that one of them has",
            OptionGroup::order);
    m_command.footer(HelpFooter("rename",
                                "Without --apply nothing is renamed. What --apply renamed, \"vyr undo\" undoes. "
                                "\"vyr help\" lists topics that say more.\n\n"));
}

RenameRequest RenameCommand::Read() const
{
    RenameRequest request;
    request.style = m_run.Read();
    m_page.Check();
    request.page = m_page.IsAskedFor() ? &m_page : nullptr;
    CheckOptionPairs(m_command, exclusive, dependent);
    if (!m_pairs && !m_sources.NamesAny() && !m_rules.Keeps())
        throw Text::UsageError("nothing to rename is named; -r . takes the files in this folder and below");
    request.sources = m_sources.Read();
    if (m_pairs)
        request.pairs = FromParser(*m_pairs);
    request.order = m_order.Read();
    request.counting = m_countsPerFolder ? Rename::Counting::EachFolder : Rename::Counting::WholeList;
    request.together = m_together;
    if (m_into)
        request.into = FromParser(*m_into);
    request.removesEmpty = m_removesEmpty;
    request.conflicts = m_conflicts.Read();
    request.edit = m_edit;
    request.rules = m_rules.Make();
    if (const std::string left = m_rules.NotKept(); !left.empty() && !request.style.quiet)
        Complain("not kept with the rules: " + left);
    return request;
}

int RenameCommand::Run() const
{
    const RenameRequest request = Read();
    if (request.pairs && !request.rules.empty())
        throw Text::UsageError("--pairs gives each new name itself; rules do not go with it");
    if (request.into && request.into->IsEmpty())
        throw Text::UsageError("--into: the name of the folder is empty");
    if (!request.pairs && !request.edit && !request.into && request.rules.empty())
        throw Text::UsageError("no rule is given, such as --number or --date");
    if (!request.pairs && !m_sources.NamesAny())
        return ExitCode::success;
    const bool mayNumber =
        request.into || std::any_of(request.rules.begin(), request.rules.end(),
                                    [](const std::unique_ptr<Rename::Rule>& rule) { return rule->MayNumber(); });
    if (m_conflicts.AskForNumbering() && !mayNumber)
        throw Text::UsageError(
            "--conflict-pattern, -digits, -position, -start and -step say how names are numbered, which is "
            "with names that are given, or that --replace, --case, --extension-case and "
            "--drop-extension alone");
    return RunRename(request);
}

std::unique_ptr<Command> AddRenameCommand(CLI::App& program)
{
    return std::make_unique<RenameCommand>(program);
}

} // namespace VyrHost::Cli
