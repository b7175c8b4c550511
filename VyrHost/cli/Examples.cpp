// The examples of the help text.
#include <VyrHost/cli/Examples.h>

namespace VyrHost {

namespace {

struct Example
{
    const char* command;
    const char* meaning;
};

constexpr Example Examples[] = {
    {"vyr rename --number \"Holiday ###\" *.jpg", "Holiday 001.jpg, Holiday 002.jpg, ..."},
    {"vyr rename --number \"<Name> (#)\" --start 10 --step 10 *.pdf", "letter (10).pdf, list (20).pdf, ..."},
    {"vyr rename --date \"yyyy-MM-dd HH.mm.ss\" --date-from picture,modified -r .",
     "every file below by the date it was taken"},
    {"vyr rename --replace IMG_ \"\" --prefix \"Rome \" --case lower *.jpg", "rules one after the other"},
    {"vyr rename --extension-case lower --json *.JPG", "for a program, one object a line"},
    {"find . -name \"*.txt\" -print0 | vyr rename --suffix \" (old)\" --stdin0", "names from another program"},
    {"vyr rename --date \"yyyy<Folder><Name>\" --together --apply *", "move into a folder for each year, now"},
};

} // namespace

std::string RenameExamples()
{
    std::string text = "Examples:\n";
    for (const Example& example : Examples)
        text.append("  ").append(example.command).append("\n        ").append(example.meaning).append("\n");
    return text;
}

} // namespace VyrHost
