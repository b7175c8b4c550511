#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/ChangeCommand.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/cli/SettingsPage.h>
#include <VyrHost/metadata/Times.h>
#include <VyrHost/text/Errors.h>
#include <VyrLibraryFuncs/shell/ControlPanelFuncs.h>

#include <CLI/CLI.hpp>

#include <memory>
#include <optional>
#include <string>

namespace VyrHost::Cli {

namespace {

constexpr const char* group = "Which times they get";
constexpr const char* timeForms = "DATE TIME";

COleDateTime ReadStart(const std::string& text)
{
    const auto typed = Text::ReadTypedDateTime(FromParser(text));
    if (!typed || !typed->hasDate)
        Text::RefuseValue("--start", FromParser(text), "a date or a date-time is expected, such as 2024-01-05");
    return typed->value;
}

/// Shows the times of files, or sets them.
class TimesCommand final : public ChangeCommand
{
public:
    explicit TimesCommand(CLI::App& program);

    [[nodiscard]] int Run() const override;

private:
    [[nodiscard]] std::unique_ptr<const Metadata::ChangeRule> ReadRule() const override;

    std::optional<std::string> m_modified;
    std::optional<std::string> m_created;
    std::optional<std::string> m_accessed;
    std::optional<std::string> m_shift;
    std::optional<std::string> m_stagger;
    std::optional<std::string> m_start;
    bool m_openSettings = false;
};

} // namespace

TimesCommand::TimesCommand(CLI::App& program)
    : ChangeCommand(*program.add_subcommand("times", "Show the times of files, or set and move them"), "change",
                    Metadata::TimesChange::kind, u"name,modified,created,accessed,taken")
{
    AddText(m_command, "--set-modified", m_modified, timeForms,
            "Set the time of the last change: \"2024-01-05 10:30\", a date or a time of day alone (the other part "
            "stays), or from:modified, from:created, from:accessed, from:picture, from:name",
            group);
    AddText(m_command, "--set-created", m_created, timeForms, "Set the creation time likewise", group);
    AddText(m_command, "--set-accessed", m_accessed, timeForms, "Set the time of the last access likewise", group);
    AddText(m_command, "--shift", m_shift, "AMOUNT",
            "Move the times that are set, or the time of the last change, by 1h30m, -1y, 6mo, 2d and the like", group);
    AddText(m_command, "--stagger", m_stagger, "AMOUNT",
            "Move each file one step more than the one before it in the list", group);
    AddText(m_command, "--start", m_start, "DATE TIME", "The time of the first file of --stagger", group);
    AddOpenSettings(m_command, "Open the system's own page of date and time (on Windows), and show nothing",
                    m_openSettings);
    m_command.footer(HelpFooter(
        "times", "Without an option that sets or moves a time the times are shown. Without --apply nothing is "
                 "changed. What --apply changed, \"vyr undo\" undoes.\n\n"));
}

int TimesCommand::Run() const
{
    if (m_openSettings)
        return OpenSettings(
            m_command, {"this system's page of date and time", VyrLibraryFuncs::ControlPanelFuncs::ExecDateAndTime});
    return ChangeCommand::Run();
}

std::unique_ptr<const Metadata::ChangeRule> TimesCommand::ReadRule() const
{
    constexpr DependentOption dependent[] = {{"--start", "--stagger"}};
    CheckOptionPairs(m_command, {}, dependent);
    Metadata::TimesSettings settings;
    bool isAny = m_shift || m_stagger;
    const auto take = [&settings, &isAny](const std::optional<std::string>& text, Metadata::FileDate date,
                                          const char* option) {
        if (!text)
            return;
        settings.sources[static_cast<std::size_t>(date)] = Metadata::ParseTimeSource(FromParser(*text), option);
        isAny = true;
    };
    take(m_modified, Metadata::FileDate::Modified, "--set-modified");
    take(m_created, Metadata::FileDate::Created, "--set-created");
    take(m_accessed, Metadata::FileDate::Accessed, "--set-accessed");
    if (m_shift)
        settings.shift = Metadata::ParseAmounts(FromParser(*m_shift), "--shift");
    if (m_stagger)
        settings.stagger = Metadata::ParseAmounts(FromParser(*m_stagger), "--stagger");
    if (m_start)
        settings.start = ReadStart(*m_start);
    return isAny ? std::make_unique<Metadata::TimesRule>(settings) : nullptr;
}

std::unique_ptr<Command> AddTimesCommand(CLI::App& program)
{
    return std::make_unique<TimesCommand>(program);
}

} // namespace VyrHost::Cli
