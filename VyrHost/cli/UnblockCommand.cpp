// Declares and runs "vyr unblock".
#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/ChangeRun.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/SourceOptions.h>
#include <VyrHost/metadata/Marks.h>
#include <VyrHost/text/Errors.h>

#include <CLI/CLI.hpp>

#include <memory>

namespace VyrHost::Cli {

namespace {

/// Takes the marks of downloads off files.
class UnblockCommand final : public Command
{
public:
    explicit UnblockCommand(CLI::App& program);

    [[nodiscard]] int Run() const override;

private:
    SourceOptions m_sources;
    OrderOptions m_order;
    ChangeOptions m_change;
};

} // namespace

UnblockCommand::UnblockCommand(CLI::App& program)
    : Command(*program.add_subcommand("unblock", "Take the mark of a download off files")),
      m_sources(m_command, "unblock"), m_order(m_command, "Order of the list"), m_change(m_command)
{
    m_command.footer("Without --apply nothing is changed. What --apply changed, \"vyr undo\" undoes.\n\n" +
                     UnblockExamples() + "\n" + ExitCode::table);
}

int UnblockCommand::Run() const
{
    m_change.Check();
    ChangeRequest request{"unblock", Metadata::MarkChange::kind, m_sources.Read(), m_order.Read()};
    if (!m_sources.NamesAny())
        throw Text::UsageError("no file is named");
    return RunChanges(request, Metadata::MarkRule(), m_change);
}

std::unique_ptr<Command> AddUnblockCommand(CLI::App& program)
{
    return std::make_unique<UnblockCommand>(program);
}

} // namespace VyrHost::Cli
