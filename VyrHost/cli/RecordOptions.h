/// @file
/// The options of all commands that list records.
#pragma once

#include <VyrHost/cli/ReportOptions.h>
#include <VyrHost/ui/RecordTable.h>

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// --csv, --json, --columns, --sort, --descending, --quiet and those of ReportOptions. A command creates this object,
/// and passes its records to it.
class RecordOptions
{
public:
    /// Adds the options to `command`; `columns` are those of its lists.
    RecordOptions(CLI::App& command, std::vector<Ui::RecordColumn> columns, RowsAbout rows = RowsAbout::Records);
    RecordOptions(const RecordOptions&) = delete;
    RecordOptions& operator=(const RecordOptions&) = delete;

    /// Checks the given options. Call it before the command does anything.
    /// @throws UsageError
    void Check() const { Check(m_columns); }
    /// The same for a list with other columns.
    void Check(std::span<const Ui::RecordColumn> columns) const;
    [[nodiscard]] bool IsJson() const { return m_json; }
    [[nodiscard]] bool IsQuiet() const { return m_quiet; }

    /// Sorts `table`, whose columns were checked, and writes it in the chosen form. Without chosen columns, people get
    /// the usual ones and programs get all.
    /// @param total  a line such as "3 programs." (UTF-8, safe to show, without a line end), written after a table for
    ///     people, else to the error stream. With --html the list goes into a page, and people get the total alone.
    /// @return `code`, or ExitCode::output.
    [[nodiscard]] int Write(Ui::RecordTable table, const std::string& total, int code) const;

private:
    [[nodiscard]] std::vector<std::size_t> ShownColumns(std::span<const Ui::RecordColumn> columns) const;

    CLI::App& m_command;
    const std::vector<Ui::RecordColumn> m_columns;
    ReportOptions m_report;
    bool m_csv = false;
    bool m_json = false;
    bool m_descending = false;
    bool m_quiet = false;
    std::optional<std::string> m_chosen;
    std::optional<std::string> m_sort;
};

/// The form of a list.
struct ListForm
{
    bool csv = false;
    bool json = false;
    bool quiet = false;
};

/// Writes `table`, whose columns to show are chosen already.
/// @param total  as for RecordOptions::Write.
/// @return `code`, or ExitCode::output.
[[nodiscard]] int WriteList(const Ui::RecordTable& table, const std::string& total, const ListForm& form, int code);

/// Such as "1 program" or "3 programs".
[[nodiscard]] std::string CountedNoun(std::size_t count, const std::string& one, const std::string& many);

} // namespace VyrHost::Cli
