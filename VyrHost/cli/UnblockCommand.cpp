// Declares and runs "vyr unblock".
#include <VyrHost/cli/UnblockCommand.h>

#include <VyrHost/cli/Examples.h>
#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/metadata/MarkChange.h>
#include <VyrHost/metadata/MarkRule.h>
#include <VyrHost/text/UsageError.h>

#include <CLI/CLI.hpp>

namespace VyrHost::Cli {

UnblockCommand::UnblockCommand(CLI::App& program)
    : m_command(*program.add_subcommand("unblock", "Take the mark of a download off files")),
      m_sources(m_command, "unblock"), m_order(m_command, "Order of the list"), m_change(m_command)
{
    m_command.footer("Without --apply nothing is changed. What --apply changed, \"vyr undo\" undoes.\n\n" +
                     UnblockExamples() + "\n" + ExitCode::Table);
}

bool UnblockCommand::IsChosen() const
{
    return m_command.parsed();
}

int UnblockCommand::Run() const
{
    m_change.Check();
    ChangeRequest request{"unblock", Metadata::MarkChange::kind, m_sources.Read(), m_order.Read()};
    if (!m_sources.NamesAny())
        throw Text::UsageError("no file is named");
    return RunChanges(request, Metadata::MarkRule(), m_change);
}

} // namespace VyrHost::Cli
