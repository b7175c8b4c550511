// Declares and runs "vyr programs" and "vyr browsers".
#include <VyrHost/cli/InventoryCommands.h>

#include <VyrHost/cli/ArgumentText.h>
#include <VyrHost/cli/Examples.h>
#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/OptionPairs.h>
#include <VyrHost/cli/SettingsPage.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/text/UsageError.h>
#include <VyrHost/ui/InventoryOutput.h>
#include <VyrLibraryFuncs/shell/ControlPanelFuncs.h>
#include <VyrLibraryUtils/FileUtils.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace VyrHost::Cli {

namespace {

using Inventory::PlaceKind;
using Inventory::Scope;

constexpr const char* Group = "What to list";

constexpr ExclusivePair Exclusive[] = {
    {"--installer", "--show-hidden", "no installer product is hidden"},
    {"--installer", "--no-32-bit", "installer products are kept in one list"},
};

void AddText(CLI::App& command, const char* name, const char* value, std::optional<std::string>& text, const char* help)
{
    const auto take = [&text](const std::string& given) {
        text = given;
    };
    command.add_option_function<std::string>(name, take, help)->type_name(value)->group(Group);
}

/// Leaves out the rows of records that do not hold the text that was asked for.
template <class Record>
void Filter(std::vector<Record>& records, const std::optional<std::string>& find)
{
    if (find)
        std::erase_if(records, [text = FromParser(*find)](const Record& record) { return !record.Matches(text); });
}

/// Sorts by the first column, the name, and shows the user where there may be several.
void Arrange(Ui::RecordTable& table, const Inventory::Place& place)
{
    Ui::SortRows(table, 0, false);
    for (Ui::RecordColumn& column : table.columns)
        if (column.name == "user")
            column.isUsual = place.kind == PlaceKind::Disk;
}

std::string SizeText(std::uint64_t bytes)
{
    constexpr std::uint64_t most = std::numeric_limits<std::int64_t>::max();
    return Text::SafeText(VyrLibraryUtils::FileUtils::GetFileSize(static_cast<std::int64_t>(std::min(bytes, most)), 0));
}

/// Such as "12 programs, 1.30 GB; 3 hidden ones are left out."
std::string TotalOf(const std::vector<Inventory::Program>& programs, std::size_t hidden)
{
    std::uint64_t bytes = 0;
    for (const Inventory::Program& program : programs)
        bytes += program.item.EstimatedSizeBytes;
    std::string total = CountedNoun(programs.size(), "program", "programs");
    if (bytes > 0)
        total += ", " + SizeText(bytes);
    if (hidden > 0)
        total += "; " + CountedNoun(hidden, "hidden one is", "hidden ones are") + " left out";
    return total + ".";
}

} // namespace

ProgramsCommand::ProgramsCommand(CLI::App& program)
    : m_command(*program.add_subcommand("programs", "List the programs that are installed in a Windows")),
      m_place(m_command), m_records(m_command, Ui::ProgramColumns())
{
    AddText(m_command, "--user", "NAME", m_user, "Of a disk: list what this user has, beside what all have");
    AddText(m_command, "--scope", "all|user|machine", m_scope,
            "Whose programs: those of users, those of the machine, or all (the default)");
    AddText(m_command, "--find", "TEXT", m_find, "Only those whose name or publisher holds the text, in any case");
    m_command.add_flag("--no-32-bit", m_no32Bit, "Leave out those in the keys of 32-bit programs")->group(Group);
    m_command
        .add_flag("--show-hidden", m_showHidden,
                  "Also those that the system's own list hides: without a name, components of the system, parts of "
                  "other programs")
        ->group(Group);
    m_command
        .add_flag("--installer", m_installer,
                  "List the products of Windows Installer instead; their columns are " +
                      Ui::NamesOf(Ui::ProductColumns()))
        ->group(Group);
    AddOpenSettings(m_command, "Open the system's own list of programs (on Windows), and list nothing", m_openSettings);
    m_command.footer(ProgramsExamples() + "\n" + ExitCode::Table);
}

bool ProgramsCommand::IsChosen() const
{
    return m_command.parsed();
}

int ProgramsCommand::Run() const
{
    if (m_openSettings)
        return OpenSettings(
            m_command, {"this system's list of programs", VyrLibraryFuncs::ControlPanelFuncs::ExecProgramsAndFeatures});
    CheckOptionPairs(m_command, Exclusive);
    m_records.Check(m_installer ? Ui::ProductColumns() : Ui::ProgramColumns());
    Inventory::PlaceRequest request = m_place.Read();
    if (m_user)
        request.user = FromParser(*m_user);
    const Scope scope = ReadScope();
    if (m_user && scope == Scope::Machine)
        throw Text::UsageError("--user and --scope machine exclude each other: the machine is no user's");
    const Inventory::Place place = Inventory::FindPlace(request);
    return m_installer ? WriteProducts(place, scope) : WritePrograms(place, scope);
}

Scope ProgramsCommand::ReadScope() const
{
    if (!m_scope || *m_scope == "all")
        return Scope::All;
    if (*m_scope == "user")
        return Scope::User;
    if (*m_scope == "machine")
        return Scope::Machine;
    Text::RefuseValue("--scope", FromParser(*m_scope), "one of all, user, machine is expected");
}

int ProgramsCommand::WritePrograms(const Inventory::Place& place, Scope scope) const
{
    Inventory::Notes notes;
    std::vector<Inventory::Program> programs = Inventory::ListPrograms(place, scope, !m_no32Bit, notes);
    const int code = Complain(notes);
    Filter(programs, m_find);
    std::size_t hidden = 0;
    if (!m_showHidden)
        hidden = std::erase_if(programs, [](const Inventory::Program& program) { return program.IsHidden(); });
    Ui::RecordTable table = Ui::TableOfPrograms(programs);
    Arrange(table, place);
    return m_records.Write(std::move(table), TotalOf(programs, hidden), code);
}

int ProgramsCommand::WriteProducts(const Inventory::Place& place, Scope scope) const
{
    Inventory::Notes notes;
    std::vector<Inventory::Product> products = Inventory::ListProducts(place, scope, notes);
    const int code = Complain(notes);
    Filter(products, m_find);
    Ui::RecordTable table = Ui::TableOfProducts(products);
    Arrange(table, place);
    return m_records.Write(std::move(table), CountedNoun(products.size(), "product", "products") + ".", code);
}

BrowsersCommand::BrowsersCommand(CLI::App& program)
    : m_command(*program.add_subcommand("browsers", "List the browsers that are installed in a Windows")),
      m_place(m_command), m_records(m_command, Ui::BrowserColumns())
{
    AddText(m_command, "--find", "TEXT", m_find, "Only those whose name holds the text, in any case");
    m_command.footer(BrowsersExamples() + "\n" + ExitCode::Table);
}

bool BrowsersCommand::IsChosen() const
{
    return m_command.parsed();
}

int BrowsersCommand::Run() const
{
    m_records.Check();
    const Inventory::Place place = Inventory::FindPlace(m_place.Read());
    Inventory::Notes notes;
    std::vector<Inventory::Browser> browsers = Inventory::ListBrowsers(place, notes);
    const int code = Complain(notes);
    Filter(browsers, m_find);
    return m_records.Write(Ui::TableOfBrowsers(browsers), CountedNoun(browsers.size(), "browser", "browsers") + ".",
                           code);
}

} // namespace VyrHost::Cli
