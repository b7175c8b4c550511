#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/ChangeCommand.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/metadata/Attributes.h>
#include <VyrHost/text/Errors.h>
#include <VyrPlatform/text/Encoding.h>

#include <CLI/CLI.hpp>

#include <memory>

namespace VyrHost::Cli {

namespace {

constexpr const char* attributesGroup = "Which attributes they get";

std::uint32_t ReadAttributes(const CLI::App& command, const char* option)
{
    std::uint32_t bits = 0;
    for (const CString& text : TextsOf(command, option))
        bits |= Metadata::ParseAttributes(text, option);
    return bits;
}

/// Shows the attributes of files, or sets and clears them.
class AttributesCommand final : public ChangeCommand
{
public:
    explicit AttributesCommand(CLI::App& program);

private:
    [[nodiscard]] std::unique_ptr<const Metadata::ChangeRule> ReadRule() const override;

    bool m_clearsAll = false;
};

} // namespace

AttributesCommand::AttributesCommand(CLI::App& program)
    : ChangeCommand(*program.add_subcommand("attributes", "Show the attributes of files, or set and clear them"),
                    "change", Metadata::AttributesChange::kind, u"name,attributes")
{
    AddTexts(m_command, "--set", "LIST",
             "Set read-only, hidden, system, archive, temporary, not-indexed, or their letters R, H, S, A, T, I; "
             "several separated by commas",
             attributesGroup);
    AddTexts(m_command, "--clear", "LIST", "Clear them likewise", attributesGroup);
    AddFlag(m_command, "--clear-all", m_clearsAll, "Clear all six but those that --set names", attributesGroup);
    m_command.footer(HelpFooter(
        "attributes", "Without an option that sets or clears an attribute they are shown. All others stay. Without "
                      "--apply nothing is changed. What --apply changed, \"vyr undo\" undoes.\n\n"));
}

std::unique_ptr<const Metadata::ChangeRule> AttributesCommand::ReadRule() const
{
    constexpr ExclusivePair exclusive[] = {{"--clear", "--clear-all"}};
    CheckOptionPairs(m_command, exclusive);
    const std::uint32_t set = ReadAttributes(m_command, "--set");
    const std::uint32_t clear = m_clearsAll ? Metadata::AllAttributes() & ~set : ReadAttributes(m_command, "--clear");
    if (set & clear)
        throw Text::UsageError("--set and --clear both name " +
                               VyrPlatform::Encoding::ToUtf8(Metadata::AttributeLetters(set & clear)));
    return set | clear ? std::make_unique<Metadata::AttributesRule>(set, clear) : nullptr;
}

std::unique_ptr<Command> AddAttributesCommand(CLI::App& program)
{
    return std::make_unique<AttributesCommand>(program);
}

} // namespace VyrHost::Cli
