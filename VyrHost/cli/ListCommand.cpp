// Declares and runs "vyr list".
#include <VyrHost/cli/ListCommand.h>

#include <VyrHost/cli/Examples.h>
#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/cli/FileRecords.h>
#include <VyrHost/text/UsageError.h>

#include <CLI/CLI.hpp>

namespace VyrHost::Cli {

ListCommand::ListCommand(CLI::App& program)
    : m_command(*program.add_subcommand("list", "List files with their sizes, times, attributes and marks")),
      m_sources(m_command, "list"), m_records(m_command, Ui::ColumnsOf(FileFields()))
{
    m_command.footer(ListExamples() + "\n" + ExitCode::Table);
}

bool ListCommand::IsChosen() const
{
    return m_command.parsed();
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

} // namespace VyrHost::Cli
