#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/KeptRules.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/rename/OptionLines.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/Output.h>
#include <VyrPlatform/text/Encoding.h>

#include <CLI/CLI.hpp>

#include <optional>
#include <string>

namespace VyrHost::Cli {

namespace {

class RulesCommand final : public Command
{
public:
    explicit RulesCommand(CLI::App& program);

    [[nodiscard]] int Run() const override;

private:
    std::optional<std::string> m_name;
};

/// The lines of the rules `name` except comments and empty ones, joined by `between`.
/// @throws UsageError where they cannot be read.
std::string LinesOf(const CString& name, char between)
{
    std::string text;
    for (const Rename::OptionLine& line : Rename::ReadOptionLines(LoadRules(name))) {
        const std::string written = Rename::WriteOptionLine(line.words);
        if (!text.empty())
            text += between;
        text += Text::SafeText(VyrPlatform::Encoding::FromNameBytes(written.substr(0, written.size() - 1)));
    }
    return text;
}

/// The rules in a line, or why they cannot be read.
std::string Summary(const CString& name)
{
    try {
        return LinesOf(name, ' ');
    } catch (const Text::UsageError& error) {
        return error.what();
    }
}

RulesCommand::RulesCommand(CLI::App& program)
    : Command(*program.add_subcommand("rules", "List the rules that \"vyr rename --save-rules\" has kept, or show one"))
{
    m_command.add_option("NAME", m_name, "What to show: the name of rules, or their file")->type_name("");
    m_command.footer(HelpFooter("rules"));
}

int RulesCommand::Run() const
{
    Ui::OutputBuffer output;
    if (m_name) {
        output << LinesOf(FromParser(*m_name), '\n') << "\n";
        return Finish(output, ExitCode::success);
    }
    const std::vector<CString> names = NamesOfKeptRules();
    for (const CString& name : names)
        output << Text::SafeText(name) << "  " << Summary(name) << "\n";
    if (names.empty())
        output << "No rules are kept; \"vyr rename --save-rules NAME\" keeps those of its call.\n";
    return Finish(output, ExitCode::success);
}

} // namespace

std::unique_ptr<Command> AddRulesCommand(CLI::App& program)
{
    return std::make_unique<RulesCommand>(program);
}

} // namespace VyrHost::Cli
