// "vyr programs" and "vyr browsers".
#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/cli/RecordOptions.h>
#include <VyrHost/cli/SettingsPage.h>
#include <VyrHost/inventory/Inventory.h>
#include <VyrHost/inventory/Place.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/InventoryOutput.h>
#include <VyrLibraryFuncs/shell/ControlPanelFuncs.h>
#include <VyrLibraryUtils/FileUtils.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace VyrHost::Cli {

namespace {

using Inventory::PlaceKind;
using Inventory::Scope;

constexpr const char* placeGroup = "Where to look";
constexpr const char* whyOne = "one place is looked at";

constexpr ExclusivePair onePlace[] = {
    {"WHERE", "--disk", whyOne},   {"WHERE", "--hives", whyOne}, {"WHERE", "--wine", whyOne},
    {"--disk", "--hives", whyOne}, {"--disk", "--wine", whyOne}, {"--hives", "--wine", whyOne},
};

/// The options that choose a registry: WHERE, --disk, --hives and --wine.
class PlaceOptions
{
public:
    explicit PlaceOptions(CLI::App& command);
    PlaceOptions(const PlaceOptions&) = delete;
    PlaceOptions& operator=(const PlaceOptions&) = delete;

    /// @throws UsageError
    [[nodiscard]] Inventory::PlaceRequest Read() const;

private:
    CLI::App& m_command;
    std::optional<std::string> m_where;
    std::optional<std::string> m_disk;
    std::optional<std::string> m_hives;
    std::optional<std::string> m_wine;
};

PlaceOptions::PlaceOptions(CLI::App& command) : m_command(command)
{
    command
        .add_option_function<std::string>(
            "WHERE", [this](const std::string& text) { m_where = text; },
            "A mounted Windows disk, a folder of hives, or a Wine prefix; without it this machine on Windows, "
            "elsewhere "
            "the prefix $WINEPREFIX or ~/.wine")
        ->type_name("");
    AddText(command, "--disk", m_disk, "FOLDER", "The folder is a mounted Windows disk, or its Windows folder",
            placeGroup);
    AddText(command, "--hives", m_hives, "FOLDER",
            "The folder holds hives (SOFTWARE, SYSTEM, NTUSER.DAT, UsrClass.dat)", placeGroup);
    AddText(command, "--wine", m_wine, "FOLDER", "The folder is a Wine prefix", placeGroup);
}

Inventory::PlaceRequest PlaceOptions::Read() const
{
    CheckOptionPairs(m_command, onePlace);
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

/// Says what could not be read, and what may be missing.
/// @return the exit code.
int ComplainOf(const Inventory::Notes& notes)
{
    for (const std::string& warning : notes.warnings)
        Complain(warning);
    for (const std::string& failure : notes.failures)
        Complain(failure);
    return notes.failures.empty() ? ExitCode::success : ExitCode::partly;
}

constexpr const char* inventoryGroup = "What to list";

constexpr ExclusivePair exclusive[] = {
    {"--installer", "--show-hidden", "no installer product is hidden"},
    {"--installer", "--no-32-bit", "installer products are kept in one list"},
};

/// Leaves out the rows that do not contain the requested text.
template <class Record>
void Filter(std::vector<Record>& records, const std::optional<std::string>& find)
{
    if (find)
        std::erase_if(records, [text = FromParser(*find)](const Record& record) { return !record.Matches(text); });
}

/// Sorts by the first column, the name, and shows the column of users if there may be several.
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

/// Lists the programs, or the installer products, that are installed.
class ProgramsCommand final : public Command
{
public:
    explicit ProgramsCommand(CLI::App& program);

    [[nodiscard]] int Run() const override;

private:
    [[nodiscard]] int WritePrograms(const Inventory::Place& place, Inventory::Scope scope) const;
    [[nodiscard]] int WriteProducts(const Inventory::Place& place, Inventory::Scope scope) const;

    const PlaceOptions m_place;
    std::optional<std::string> m_user;
    std::optional<std::string> m_scope;
    std::optional<std::string> m_find;
    bool m_installer = false;
    bool m_no32Bit = false;
    bool m_showHidden = false;
    bool m_openSettings = false;
    RecordOptions m_records;
};

/// Lists the browsers that are installed.
class BrowsersCommand final : public Command
{
public:
    explicit BrowsersCommand(CLI::App& program);

    [[nodiscard]] int Run() const override;

private:
    const PlaceOptions m_place;
    std::optional<std::string> m_find;
    RecordOptions m_records;
};

} // namespace

ProgramsCommand::ProgramsCommand(CLI::App& program)
    : Command(*program.add_subcommand("programs", "List the programs that are installed in a Windows")),
      m_place(m_command), m_records(m_command, Ui::ProgramColumns())
{
    AddText(m_command, "--user", m_user, "NAME", "Of a disk: list what this user has, beside what all have",
            inventoryGroup);
    AddText(m_command, "--scope", m_scope, "all|user|machine",
            "Whose programs: those of users, those of the machine, or all (the default)", inventoryGroup);
    AddText(m_command, "--find", m_find, "TEXT", "Only those whose name or publisher holds the text, in any case",
            inventoryGroup);
    AddFlag(m_command, "--no-32-bit", m_no32Bit, "Leave out those in the keys of 32-bit programs", inventoryGroup);
    m_command
        .add_flag("--show-hidden", m_showHidden,
                  "Also those that the system's own list hides: without a name, components of the system, parts of "
                  "other programs")
        ->group(inventoryGroup);
    m_command
        .add_flag("--installer", m_installer,
                  "List the products of Windows Installer instead; their columns are " +
                      Ui::NamesOf(Ui::ProductColumns()))
        ->group(inventoryGroup);
    AddOpenSettings(m_command, "Open the system's own list of programs (on Windows), and list nothing", m_openSettings);
    m_command.footer(HelpFooter("programs"));
}

int ProgramsCommand::Run() const
{
    if (m_openSettings)
        return OpenSettings(
            m_command, {"this system's list of programs", VyrLibraryFuncs::ControlPanelFuncs::ExecProgramsAndFeatures});
    CheckOptionPairs(m_command, exclusive);
    m_records.Check(m_installer ? Ui::ProductColumns() : Ui::ProgramColumns());
    Inventory::PlaceRequest request = m_place.Read();
    if (m_user)
        request.user = FromParser(*m_user);
    const Scope scope =
        ReadWord<Scope>(m_scope, "--scope", {{"all", Scope::All}, {"user", Scope::User}, {"machine", Scope::Machine}});
    if (m_user && scope == Scope::Machine)
        throw Text::UsageError("--user and --scope machine exclude each other: the machine belongs to no user");
    const Inventory::Place place = Inventory::FindPlace(request);
    return m_installer ? WriteProducts(place, scope) : WritePrograms(place, scope);
}

int ProgramsCommand::WritePrograms(const Inventory::Place& place, Scope scope) const
{
    Inventory::Notes notes;
    std::vector<Inventory::Program> programs = Inventory::ListPrograms(place, scope, !m_no32Bit, notes);
    const int code = ComplainOf(notes);
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
    const int code = ComplainOf(notes);
    Filter(products, m_find);
    Ui::RecordTable table = Ui::TableOfProducts(products);
    Arrange(table, place);
    return m_records.Write(std::move(table), CountedNoun(products.size(), "product", "products") + ".", code);
}

BrowsersCommand::BrowsersCommand(CLI::App& program)
    : Command(*program.add_subcommand("browsers", "List the browsers that are installed in a Windows")),
      m_place(m_command), m_records(m_command, Ui::BrowserColumns())
{
    AddText(m_command, "--find", m_find, "TEXT", "Only those whose name holds the text, in any case", inventoryGroup);
    m_command.footer(HelpFooter("browsers"));
}

int BrowsersCommand::Run() const
{
    m_records.Check();
    const Inventory::Place place = Inventory::FindPlace(m_place.Read());
    Inventory::Notes notes;
    std::vector<Inventory::Browser> browsers = Inventory::ListBrowsers(place, notes);
    const int code = ComplainOf(notes);
    Filter(browsers, m_find);
    return m_records.Write(Ui::TableOfBrowsers(browsers), CountedNoun(browsers.size(), "browser", "browsers") + ".",
                           code);
}

std::unique_ptr<Command> AddProgramsCommand(CLI::App& program)
{
    return std::make_unique<ProgramsCommand>(program);
}

std::unique_ptr<Command> AddBrowsersCommand(CLI::App& program)
{
    return std::make_unique<BrowsersCommand>(program);
}

} // namespace VyrHost::Cli
