// Declares the options for lists, and writes a list by them.
#include <VyrHost/cli/RecordOptions.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/ui/Output.h>
#include <VyrHost/ui/RecordWriters.h>
#include <VyrHostPlatform/Console.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <utility>

namespace VyrHost::Cli {

namespace {

constexpr const char* viewGroup = "How the list is shown";

} // namespace

RecordOptions::RecordOptions(CLI::App& command, std::vector<Ui::RecordColumn> columns, RowsAbout rows)
    : m_command(command), m_columns(std::move(columns)), m_report(command, rows)
{
    command
        .add_option_function<std::string>(
            "--columns", [this](const std::string& text) { m_chosen = text; },
            "The columns, separated by commas, or all; they are " + Ui::NamesOf(m_columns))
        ->type_name("LIST")
        ->group(viewGroup);
    command
        .add_option_function<std::string>(
            "--sort", [this](const std::string& text) { m_sort = text; },
            "Sort by a column; what has no value there comes last")
        ->type_name("COLUMN")
        ->group(viewGroup);
    command.add_flag("--descending", m_descending, "Reverse the order")->group(viewGroup);
    command.add_flag("--csv", m_csv, "Write a table for spreadsheets (CSV), with all columns unless some are chosen")
        ->group(viewGroup);
    command.add_flag("--json", m_json, "Write one JSON object a line, with all columns unless some are chosen")
        ->group(viewGroup);
    command.add_flag("-q,--quiet", m_quiet, "Show no headings and no total")->group(viewGroup);
}

void RecordOptions::Check(std::span<const Ui::RecordColumn> columns) const
{
    constexpr ExclusivePair exclusive[] = {{"--csv", "--json"}, {"--html", "--csv"}, {"--html", "--json"}};
    CheckOptionPairs(m_command, exclusive);
    m_report.Check();
    static_cast<void>(ShownColumns(columns));
    if (m_sort && Ui::FindColumns(columns, FromParser(*m_sort), "--sort").size() != 1)
        Text::RefuseValue("--sort", FromParser(*m_sort), "one column is expected");
}

int RecordOptions::Write(Ui::RecordTable table, const std::string& total, int code) const
{
    table.shown = ShownColumns(table.columns);
    if (m_sort)
        Ui::SortRows(table, Ui::FindColumns(table.columns, FromParser(*m_sort), "--sort").front(), m_descending);
    else if (m_descending)
        std::reverse(table.rows.begin(), table.rows.end());
    if (!m_report.IsAskedFor())
        return WriteList(table, total, {m_csv, m_json, m_quiet}, code);
    code = m_report.Write(table, total, code);
    Ui::OutputBuffer output;
    if (!m_quiet)
        output << total << "\n";
    return Finish(output, code);
}

std::vector<std::size_t> RecordOptions::ShownColumns(std::span<const Ui::RecordColumn> columns) const
{
    if (m_chosen)
        return Ui::FindColumns(columns, FromParser(*m_chosen), "--columns");
    return m_csv || m_json ? Ui::FindColumns(columns, u"all", "--columns") : Ui::UsualColumns(columns);
}

int WriteList(const Ui::RecordTable& table, const std::string& total, const ListForm& form, int code)
{
    const bool isForPeople = !form.csv && !form.json;
    Ui::OutputBuffer output;
    if (form.csv)
        Ui::WriteRecordCsv(output, table);
    else if (form.json)
        Ui::WriteRecordJson(output, table);
    else
        Ui::WriteRecords(output, table, Ui::StyleOfOutput(), !form.quiet);
    if (!form.quiet && isForPeople)
        output << total << "\n";
    output.Flush();
    if (!form.quiet && !isForPeople)
        VyrHostPlatform::Console::Write(VyrHostPlatform::Console::Stream::Error, total + "\n");
    return Finish(output, code);
}

std::string CountedNoun(std::size_t count, const std::string& one, const std::string& many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

} // namespace VyrHost::Cli
