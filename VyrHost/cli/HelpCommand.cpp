#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/HelpTopics.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/NearestWord.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/Output.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace VyrHost::Cli {

namespace {

class HelpCommand final : public Command
{
public:
    explicit HelpCommand(CLI::App& program);

    [[nodiscard]] int Run() const override;

private:
    [[nodiscard]] std::string Overview() const;
    [[nodiscard]] std::string TextOf(const HelpTopic& topic) const;
    [[noreturn]] void Refuse() const;

    const CLI::App& m_program;
    std::optional<std::string> m_topic;
};

HelpCommand::HelpCommand(CLI::App& program)
    : Command(*program.add_subcommand("help", "Explain a topic, or list all options of a command")), m_program(program)
{
    m_command.add_option("TOPIC", m_topic, "rules, tokens, dates, choosing, undo, or the name of a command")
        ->type_name("");
}

int HelpCommand::Run() const
{
    const std::span<const HelpTopic> topics = HelpTopics();
    const auto topic =
        std::find_if(topics.begin(), topics.end(), [this](const HelpTopic& known) { return m_topic == known.name; });
    const auto named = m_program.get_subcommands(
        [this](const CLI::App* command) { return m_topic && command->get_name() == *m_topic; });
    Ui::OutputBuffer output;
    if (!m_topic)
        output << Overview();
    else if (topic != topics.end())
        output << WrapHelp(TextOf(*topic));
    else if (!named.empty())
        output << WrapHelp(named.front()->help(m_program.get_name()));
    else
        Refuse();
    return Finish(output, ExitCode::success);
}

std::string HelpCommand::Overview() const
{
    std::string text = "Topics:\n";
    for (const HelpTopic& topic : HelpTopics())
        text += "  vyr help " + (topic.name + std::string(11, ' ')).substr(0, 11) + topic.summary + "\n";
    return text + "\nvyr help rename lists all options of vyr rename, vyr COMMAND --help those of\n"
                  "any other command; vyr --help lists the commands.\n";
}

std::string HelpCommand::TextOf(const HelpTopic& topic) const
{
    CLI::Formatter formatter;
    formatter.column_width(helpColumn);
    const CLI::App& rename = *m_program.get_subcommand("rename");
    std::string text;
    for (const char* const group : topic.groups)
        text += formatter.make_group(group, false, rename.get_options([group](const CLI::Option* option) {
            return option->get_group() == group && option->nonpositional();
        }));
    text.erase(0, text.find_first_not_of('\n'));
    text += text.empty() ? "" : "\n";
    return text + (topic.table ? topic.table() : std::string()) + topic.text;
}

void HelpCommand::Refuse() const
{
    std::vector<std::string> words;
    for (const HelpTopic& topic : HelpTopics())
        words.emplace_back(topic.name);
    for (const CLI::App* const command : m_program.get_subcommands([](const CLI::App*) { return true; }))
        words.push_back(command->get_name());
    throw Text::UsageError("there is no topic and no command '" + Text::SafeText(FromParser(*m_topic)) + "'" +
                           Text::Hint(*m_topic, words) + "\nvyr help lists the topics.");
}

} // namespace

std::unique_ptr<Command> AddHelpCommand(CLI::App& program)
{
    return std::make_unique<HelpCommand>(program);
}

} // namespace VyrHost::Cli
