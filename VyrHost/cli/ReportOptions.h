/// @file
/// The options of commands that can write what they show as a page for a browser.
#pragma once

#include <VyrHost/reports/Design.h>
#include <VyrHost/ui/RecordTable.h>

#include <cstdint>
#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// The subject of the rows of a command's lists.
enum class RowsAbout : std::uint8_t
{
    Records,
    /// Files; pages can show their thumbnails.
    Files
};

/// --html, --overwrite, --design, --designs and, for lists of files, --thumbnails.
class ReportOptions
{
public:
    /// Adds the options to `command`.
    ReportOptions(CLI::App& command, RowsAbout rows);
    ReportOptions(const ReportOptions&) = delete;
    ReportOptions& operator=(const ReportOptions&) = delete;

    /// Whether a page was requested.
    [[nodiscard]] bool IsAskedFor() const { return m_file.has_value(); }
    /// Checks the given options. Call it before the command does anything.
    /// @throws UsageError
    void Check() const;

    /// Writes `table` as a page.
    /// @param total  such as "3 programs." (UTF-8).
    /// @return `code`, or ExitCode::output after a complaint.
    [[nodiscard]] int Write(const Ui::RecordTable& table, const std::string& total, int code) const;

private:
    [[nodiscard]] CString Path() const;
    [[nodiscard]] Reports::Design ChosenDesign() const;

    CLI::App& m_command;
    std::optional<std::string> m_file;
    std::optional<std::string> m_design;
    std::optional<std::string> m_designs;
    bool m_mayReplace = false;
    bool m_hasThumbnails = false;
};

} // namespace VyrHost::Cli
