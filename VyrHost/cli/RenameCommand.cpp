// Declares "vyr rename" and makes a request of what was given.
#include <VyrHost/cli/RenameCommand.h>

#include <VyrHost/cli/Examples.h>
#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/text/UsageError.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>
#include <string>

namespace VyrHost::Cli {

namespace {

/// docs/date-time-formats.md says the same; a test compares them.
constexpr const char* DateLetters = "Letters of --date (text goes in apostrophes):\n"
                                    "  yyyy yy        year              HH H  hour, 0 to 23\n"
                                    "  MMMM MMM MM M  month             hh h  hour, 1 to 12\n"
                                    "  dd d           day               mm m  minute\n"
                                    "  EEEE EEE       day of the week   ss s  second\n"
                                    "                                   a     before or after noon\n\n";

} // namespace

RenameCommand::RenameCommand(CLI::App& program)
    : m_command(*program.add_subcommand("rename", "Rename files and folders by rules; shows the result first")),
      m_rules(m_command), m_options(m_command)
{
    m_command.footer(std::string(DateLetters) +
                     "Without --apply nothing is renamed. What --apply renamed, \"vyr undo\" undoes.\n\n" +
                     RenameExamples() + "\n" + ExitCode::Table);
}

bool RenameCommand::IsChosen() const
{
    return m_command.parsed();
}

int RenameCommand::Run() const
{
    RenameRequest request = m_options.Read();
    request.rules = m_rules.Make();
    if (request.pairs && !request.rules.empty())
        throw Text::UsageError("--pairs gives each new name itself; rules do not go with it");
    if (!request.pairs && !request.edit && request.rules.empty())
        throw Text::UsageError("no rule is given, such as --number or --date");
    const bool mayNumber = std::any_of(request.rules.begin(), request.rules.end(),
                                       [](const std::unique_ptr<Rename::Rule>& rule) { return rule->MayNumber(); });
    if (m_options.AsksForNumbering() && !mayNumber)
        throw Text::UsageError(
            "--conflict-pattern, -digits, -position, -start and -step say how names are numbered, which is "
            "not done to names that are given or come of --replace, --case, --extension-case and "
            "--drop-extension alone");
    return RunRename(request);
}

} // namespace VyrHost::Cli
