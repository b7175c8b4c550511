// Reads the options of "vyr rename", gathers, decides and shows.
#include <VyrHost/cli/RenameCommand.h>

#include <VyrHost/UsageError.h>
#include <VyrHost/cli/ArgumentText.h>
#include <VyrHost/cli/Examples.h>
#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/entries/Gather.h>
#include <VyrHost/output/JsonLines.h>
#include <VyrHost/output/SafeText.h>
#include <VyrHost/output/Summary.h>
#include <VyrHost/output/Table.h>
#include <VyrHost/preview/Preview.h>
#include <VyrPlatform/Console.h>

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace VyrHost {

namespace {

using VyrPlatform::Console::Stream;

constexpr const char* ExitCodes = "Exit codes:\n"
                                  "  0  all entries can get their names\n"
                                  "  1  some entries were refused, or a folder could not be read\n"
                                  "  2  the call is wrong; nothing was done\n"
                                  "  3  the result could not be written\n";

/// Numbers in blank and parentheses after the name.
VyrLibraryFuncs::NameFuncs::CONFLICTITEM UsualNumbering()
{
    VyrLibraryFuncs::NameFuncs::CONFLICTITEM numbering;
    numbering.numberFormat = u" (?)";
    numbering.position = 1;
    numbering.startNumber = 1;
    numbering.step = 1;
    return numbering;
}

void Report(const CString& problem)
{
    VyrPlatform::Console::Write(Stream::Error, "vyr: " + SafeText(problem) + "\n");
}

} // namespace

struct RenameCommand::Options
{
    std::vector<std::string> paths;
    bool recursive = false;
    bool hidden = false;
    bool lines = false;
    bool terminated = false;
    bool json = false;

    void AddTo(CLI::App& command)
    {
        command
            .add_option("PATH", paths, "Files and folders to rename; * and ? match names where the shell leaves them")
            ->type_name("");
        command.add_flag("-r,--recursive", recursive, "Rename the files below a folder instead of the folder itself")
            ->group("What to rename");
        command.add_flag("--hidden", hidden, "With --recursive and wildcards: names that begin with a dot, too")
            ->group("What to rename");
        CLI::Option* const line = command.add_flag("--stdin", lines, "Read names from the standard input, one a line")
                                      ->group("What to rename");
        command.add_flag("--stdin0", terminated, "Read names from the standard input, each ended by a NUL")
            ->excludes(line)
            ->group("What to rename");
        command.add_flag("--json", json, "Write one JSON object for each entry: from, to, status, reason")
            ->group("Output");
    }

    [[nodiscard]] SourceSettings Sources() const
    {
        SourceSettings settings;
        for (const std::string& path : paths)
            settings.paths.push_back(FromParser(path));
        settings.recursive = recursive;
        settings.hidden = hidden;
        if (lines || terminated)
            settings.input = lines ? InputNames::Lines : InputNames::Terminated;
        return settings;
    }
};

RenameCommand::RenameCommand(CLI::App& program)
    : m_command(*program.add_subcommand("rename", "Show what files and folders would be named under rules")),
      m_rules(m_command), m_options(std::make_unique<Options>())
{
    m_options->AddTo(m_command);
    m_command.footer("Nothing is renamed: the result is a preview.\n\n" + RenameExamples() + "\n" + ExitCodes);
}

RenameCommand::~RenameCommand() = default;

bool RenameCommand::IsChosen() const
{
    return m_command.parsed();
}

int RenameCommand::Run() const
{
    const Rules rules = m_rules.Make();
    if (rules.empty())
        throw UsageError("no rule is given, such as --number or --date");
    const SourceSettings sources = m_options->Sources();
    if (sources.paths.empty() && sources.input == InputNames::None)
        throw UsageError("nothing to rename is named");

    Gathered gathered = Gather(sources);
    for (const CString& problem : gathered.problems)
        Report(problem);
    const std::vector<Decision> decisions =
        Decide(gathered.list, rules, {.mode = OnConflict::Number, .numbering = UsualNumbering()});

    OutputBuffer output;
    const Tally tally(decisions);
    if (m_options->json) {
        WriteJsonLines(output, gathered.list, decisions);
        VyrPlatform::Console::Write(Stream::Error, SummaryOf(tally));
    } else {
        WriteTable(output, gathered.list, decisions, StyleOfOutput());
        output << SummaryOf(tally) << "This is a preview: nothing was changed.\n";
    }
    output.Flush();
    if (output.HasFailed())
        return ExitCode::Output;
    return tally[Status::Refused] > 0 || !gathered.problems.empty() ? ExitCode::Partly : ExitCode::Success;
}

} // namespace VyrHost
