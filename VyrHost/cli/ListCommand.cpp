#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/FileRecords.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/RecordOptions.h>
#include <VyrHost/cli/SourceOptions.h>
#include <VyrHost/text/Errors.h>

#include <CLI/CLI.hpp>

#include <memory>

namespace VyrHost::Cli {

namespace {

/// Lists files with their properties.
class ListCommand final : public Command
{
public:
    explicit ListCommand(CLI::App& program);

    [[nodiscard]] int Run() const override;

private:
    SourceOptions m_sources;
    RecordOptions m_records;
};

} // namespace

ListCommand::ListCommand(CLI::App& program)
    : Command(*program.add_subcommand("list", "List files with their sizes, times, attributes and marks")),
      m_sources(m_command, "list"), m_records(m_command, Ui::ColumnsOf(FileFields()), RowsAbout::Files)
{
    m_command.footer(HelpFooter("list"));
}

int ListCommand::Run() const
{
    m_records.Check();
    Collect::SourceSettings sources = m_sources.Read();
    if (!m_sources.NamesAny())
        throw Text::UsageError("nothing to list is named; \"vyr list -r .\" lists what is in this folder and below");
    const FileRecords files(sources);
    return m_records.Write(files.Table(), files.Total(), files.Code());
}

std::unique_ptr<Command> AddListCommand(CLI::App& program)
{
    return std::make_unique<ListCommand>(program);
}

} // namespace VyrHost::Cli
