// Wraps help texts, and contains the examples.
#include <VyrHost/cli/Help.h>

#include <VyrHost/cli/Messages.h>

#include <iterator>
#include <sstream>
#include <utility>

namespace VyrHost::Cli {

namespace {

constexpr std::size_t longestLine = 80;

void AppendWrapped(std::string& text, std::string line)
{
    const std::size_t indent = line.find_first_not_of(' ') > 1 ? helpColumn : 0;
    while (line.size() > longestLine) {
        const std::size_t blank = line.rfind(' ', longestLine);
        if (blank == std::string::npos || blank <= indent)
            break;
        text.append(line, 0, blank) += '\n';
        line = std::string(indent, ' ').append(line, blank + 1);
    }
    text.append(line) += '\n';
}

} // namespace

std::string WrapHelp(const std::string& help)
{
    std::string text;
    std::istringstream lines(help);
    for (std::string line; std::getline(lines, line);)
        if (!line.empty() || !text.ends_with("\n\n"))
            AppendWrapped(text, std::move(line));
    return text;
}

namespace {

struct Example
{
    const char* call;
    const char* meaning;
};

/// Each is shown in the help of the command that it calls.
constexpr Example examples[] = {
    {"vyr rename --number \"Holiday ###\" *.jpg", "Holiday 001.jpg, Holiday 002.jpg, ..."},
    {"vyr rename --number \"<Name> (#)\" --start 10 --step 10 *.pdf", "letter (10).pdf, list (20).pdf, ..."},
    {"vyr rename --date \"yyyy-MM-dd HH.mm.ss\" --date-from picture,modified -r .",
     "every file below by the date it was taken"},
    {"vyr rename --name \"<Date:yyyy-MM-dd> <Model?camera> <##:per day>\" *.jpg", "a counter that restarts each day"},
    {"vyr rename --name \"<Artist?Unknown><Folder><Title?Untitled>\" *.pdf",
     "music and documents into folders by who made them"},
    {"vyr rename --replace IMG_ \"\" --prefix \"Rome \" --case lower *.jpg", "rules one after the other"},
    {"vyr rename --extension-case lower --json *.JPG", "for a program, one object a line"},
    {"find . -name \"*.txt\" -print0 | vyr rename --suffix \" (old)\" --stdin0", "names from another program"},
    {"vyr rename --date \"yyyy<Folder><Name>\" --together --apply *", "move into a folder for each year, now"},
    {"vyr list -r .", "every file below with its size and the time of its last change"},
    {"vyr list -r Pictures --size 100MB.. --sort size --descending", "the largest first"},
    {"vyr list --columns name,zone,from Downloads/*", "where downloads came from"},
    {"vyr list -r . --taken last-year --csv --columns path,taken,maker,model", "for a spreadsheet"},
    {"vyr times *.jpg", "their times"},
    {"vyr times --set-modified from:picture *.jpg", "when the pictures were taken"},
    {"vyr times --set-modified from:name -r . --include \"IMG*\"", "IMG_20240105_103000.jpg: 5 January 2024 10:30"},
    {"vyr times --shift -1h *.jpg --apply", "a camera whose clock was an hour ahead, now"},
    {"vyr times --sort name --stagger 1m --start \"2024-01-05 10:00\" *.jpg", "a minute from one to the next"},
    {"vyr attributes *.pdf", "their attributes"},
    {"vyr attributes --set read-only *.pdf", "protect files"},
    {"vyr attributes --clear RH -r . --apply", "read-only and hidden, by their letters, now"},
    {"vyr unblock -r .", "which files have the mark, and where they came from"},
    {"vyr unblock *.pdf --apply", "remove it, now"},
    {"vyr properties -r . --include \"*.docx\"", "the properties of the documents below"},
    {"vyr properties --set title=\"<Parent>: <Name>\" *.doc", "titles from the names of folders and files"},
    {"vyr properties --clear author,lastAuthor *.docx --apply", "without the names of their authors, now"},
    {"vyr properties --clear-all *.docx", "empty their properties: who wrote them, when, and more"},
    {"vyr properties *.doc --csv --columns path,title,author", "for a spreadsheet"},
    {"vyr copy Pictures Backup", "into Backup where that is a folder, else as Backup"},
    {"vyr copy Pictures Scans Backup --apply", "both into the folder Backup, now"},
    {"vyr copy --json Pictures Backup", "for a program, one object a line"},
    {"vyr move Pictures \"Old pictures\"", "under a new name, or into that folder"},
    {"vyr move Pictures Scans Backup --quiet --apply", "both into the folder Backup, now; show only what fails"},
    {"vyr undo --list", "the batches with their numbers"},
    {"vyr undo", "undo the latest batch of this folder"},
    {"vyr undo 1 --quiet", "undo batch 1, and show only what stays renamed"},
    {"vyr recover", "do what is left of the batch that was cut off"},
    {"vyr recover --take-back", "restore what was before it"},
    {"vyr recover --abandon", "go on without a batch that can be neither finished nor undone"},
    {"vyr rules", "the names of all, with what they do"},
    {"vyr rules titles", "the rules that are kept under the name titles"},
    {"vyr programs", "of this machine, or of your Wine prefix"},
    {"vyr programs /mnt/windows --sort size --descending", "of a mounted Windows disk, the largest first"},
    {"vyr programs --wine prefix --columns name,version,key", "of a Wine prefix, with the keys of the registry"},
    {"vyr programs /mnt/windows --installer --json", "products of Windows Installer, one object a line"},
    {"vyr browsers", "of this machine, or of your Wine prefix"},
    {"vyr browsers /mnt/windows --csv", "of a mounted Windows disk, for a spreadsheet"},
};

} // namespace

std::string ExamplesOf(const std::string& command, std::size_t most)
{
    std::string text = "Examples:\n";
    for (const Example& example : examples)
        if (most > 0 && (std::string(example.call) + " ").find("vyr " + command + " ") != std::string::npos) {
            text.append("  ").append(example.call).append("\n        ").append(example.meaning).append("\n");
            --most;
        }
    return text;
}

std::string HelpFooter(const std::string& command, const std::string& text)
{
    return text + ExamplesOf(command, std::size(examples)) + "\n" + ExitCode::table;
}

} // namespace VyrHost::Cli
