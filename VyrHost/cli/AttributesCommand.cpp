// Declares and runs "vyr attributes".
#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/ChangeRun.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/cli/SourceOptions.h>
#include <VyrHost/metadata/Attributes.h>
#include <VyrHost/text/Errors.h>
#include <VyrPlatform/text/Encoding.h>

#include <CLI/CLI.hpp>

#include <memory>

namespace VyrHost::Cli {

namespace {

constexpr const char* group = "Which attributes they get";

void AddAttributes(CLI::App& command, const char* name, const std::string& help)
{
    command.add_option(name, help)
        ->type_name("LIST")
        ->type_size(1)
        ->expected(1)
        ->allow_extra_args(false)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->group(group);
}

std::uint32_t ReadAttributes(const CLI::App& command, const char* option)
{
    std::uint32_t bits = 0;
    for (const std::string& value : command.get_option(option)->results())
        bits |= Metadata::ParseAttributes(FromParser(value), option);
    return bits;
}

/// Shows the attributes of files, or sets and clears them.
class AttributesCommand final : public Command
{
public:
    explicit AttributesCommand(CLI::App& program);

    [[nodiscard]] int Run() const override;

private:
    SourceOptions m_sources;
    OrderOptions m_order;
    ChangeOptions m_change;
    bool m_clearsAll = false;
};

} // namespace

AttributesCommand::AttributesCommand(CLI::App& program)
    : Command(*program.add_subcommand("attributes", "Show the attributes of files, or set and clear them")),
      m_sources(m_command, "change"), m_order(m_command, "Order of the list"), m_change(m_command)
{
    AddAttributes(m_command, "--set",
                  "Set read-only, hidden, system, archive, temporary, not-indexed, or their letters R, H, S, A, T, I; "
                  "several separated by commas");
    AddAttributes(m_command, "--clear", "Clear them likewise");
    AddFlag(m_command, "--clear-all", m_clearsAll, "Clear all six but those that --set names", group);
    m_command.footer("Without an option that sets or clears an attribute they are shown. All others stay. Without "
                     "--apply nothing is changed. What --apply changed, \"vyr undo\" undoes.\n\n" +
                     AttributesExamples() + "\n" + ExitCode::table);
}

int AttributesCommand::Run() const
{
    m_change.Check();
    constexpr ExclusivePair exclusive[] = {{"--clear", "--clear-all"}};
    CheckOptionPairs(m_command, exclusive);
    ChangeRequest request{"attributes", Metadata::AttributesChange::kind, m_sources.Read(), m_order.Read()};
    if (!m_sources.NamesAny())
        throw Text::UsageError("no file is named");
    const std::uint32_t set = ReadAttributes(m_command, "--set");
    const std::uint32_t clear = m_clearsAll ? Metadata::AllAttributes() & ~set : ReadAttributes(m_command, "--clear");
    if (set & clear)
        throw Text::UsageError("--set and --clear both name " +
                               VyrPlatform::Encoding::ToUtf8(Metadata::AttributeLetters(set & clear)));
    if (set == 0 && clear == 0)
        return ShowFiles(request.sources, u"name,attributes", m_change);
    return RunChanges(request, Metadata::AttributesRule(set, clear), m_change);
}

std::unique_ptr<Command> AddAttributesCommand(CLI::App& program)
{
    return std::make_unique<AttributesCommand>(program);
}

} // namespace VyrHost::Cli
