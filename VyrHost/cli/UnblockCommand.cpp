#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/ChangeCommand.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/metadata/Marks.h>

#include <CLI/CLI.hpp>

#include <memory>

namespace VyrHost::Cli {

namespace {

/// Removes the marks of downloads from files.
class UnblockCommand final : public ChangeCommand
{
public:
    explicit UnblockCommand(CLI::App& program)
        : ChangeCommand(*program.add_subcommand("unblock", "Take the mark of a download off files"), "unblock",
                        Metadata::MarkChange::kind)
    {
        m_command.footer(HelpFooter(
            "unblock", "Without --apply nothing is changed. What --apply changed, \"vyr undo\" undoes.\n\n"));
    }

private:
    [[nodiscard]] std::unique_ptr<const Metadata::ChangeRule> ReadRule() const override
    {
        return std::make_unique<Metadata::MarkRule>();
    }
};

} // namespace

std::unique_ptr<Command> AddUnblockCommand(CLI::App& program)
{
    return std::make_unique<UnblockCommand>(program);
}

} // namespace VyrHost::Cli
