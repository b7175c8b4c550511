// Breaks the lines of help texts.
#include <VyrHost/cli/HelpText.h>

#include <sstream>

namespace VyrHost::Cli {

namespace {

constexpr std::size_t LongestLine = 80;

void AppendWrapped(std::string& text, std::string line)
{
    const std::size_t indent = line.find_first_not_of(" ") > 1 ? HelpColumn : 0;
    while (line.size() > LongestLine) {
        const std::size_t blank = line.rfind(' ', LongestLine);
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

} // namespace VyrHost::Cli
