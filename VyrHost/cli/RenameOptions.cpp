// Declares and reads the options of "vyr rename" beside the rules.
#include <VyrHost/cli/RenameOptions.h>

#include <VyrHost/cli/ArgumentText.h>
#include <VyrHost/cli/OptionPairs.h>
#include <VyrHost/cli/TextOptions.h>
#include <VyrHost/rename/LiteralText.h>
#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/UsageError.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <limits>
#include <utility>

namespace VyrHost::Cli {

namespace {

int ReadNumber(const std::optional<std::string>& text, int usual, const char* option)
{
    return text ? Rename::ParseNumber(FromParser(*text), std::numeric_limits<int>::min(), option) : usual;
}

constexpr const char* OrderGroup = "Order and numbers";
constexpr const char* NamesItself = "--pairs names the entries itself";
constexpr const char* GivesNames = "--pairs gives each new name itself";

constexpr ExclusivePair Exclusive[] = {
    {"--json", "--quiet"},
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
    {"--number-per-folder", "--number"},
};

} // namespace

RenameOptions::RenameOptions(CLI::App& command)
    : m_command(command), m_sources(command, "rename"), m_order(command, OrderGroup)
{
    AddSources(command);
    AddOrder(command);
    AddConflicts(command);
    AddOutput(command);
}

void RenameOptions::AddSources(CLI::App& command)
{
    constexpr const char* Group = "What to rename";
    AddText(command, "--pairs", m_pairs, "FILE",
            "Read pairs of old and new names, separated by a comma, a semicolon or a tab; - is the standard input",
            Group);
    AddFlag(command, "--edit", m_edit, "Look through the new names in your editor ($VISUAL, $EDITOR)", Group);
}

void RenameOptions::AddOrder(CLI::App& command)
{
    AddFlag(command, "--number-per-folder", m_countsPerFolder, "Start the numbers anew in each folder", OrderGroup);
    AddFlag(command, "--together", m_together,
            "Give files that differ in their extensions alone (raw, JPEG, sidecar) one new name, by the first date of "
            "--date-from that one of them has",
            OrderGroup);
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
    numbering.position = ReadWord<int>(m_conflictPosition, "--conflict-position", {{"after", 1}, {"before", 0}});
    numbering.startNumber = ReadNumber(m_conflictStart, 1, "--conflict-start");
    numbering.step = ReadNumber(m_conflictStep, 1, "--conflict-step");
    if (numbering.step == 0)
        throw Text::UsageError("--conflict-step: a step of 0 could never give a free name");
}

} // namespace VyrHost::Cli
