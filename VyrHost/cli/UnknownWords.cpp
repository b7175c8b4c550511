// Finds unknown words in the arguments, and what they were meant to be.
#include <VyrHost/cli/UnknownWords.h>

#include <VyrHost/text/SafeText.h>
#include <VyrHost/text/UsageError.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstddef>

namespace VyrHost::Cli {

namespace {

/// How many letters must be added, left out, changed or swapped with their neighbours (each once) to make `left` of
/// `right`: the optimal string alignment distance.
std::size_t Distance(std::string_view left, std::string_view right)
{
    const std::size_t width = right.size() + 1;
    std::vector<std::size_t> table((left.size() + 1) * width);
    const auto at = [&table, width](std::size_t row, std::size_t column) -> std::size_t& {
        return table[row * width + column];
    };
    for (std::size_t row = 0; row <= left.size(); ++row) {
        for (std::size_t column = 0; column < width; ++column) {
            if (row == 0 || column == 0) {
                at(row, column) = row + column;
                continue;
            }
            const bool isSame = left[row - 1] == right[column - 1];
            std::size_t& cell = at(row, column);
            cell = std::min(
                {at(row - 1, column) + 1, at(row, column - 1) + 1, at(row - 1, column - 1) + (isSame ? 0U : 1U)});
            if (row > 1 && column > 1 && left[row - 1] == right[column - 2] && left[row - 2] == right[column - 1])
                cell = std::min(cell, at(row - 2, column - 2) + 1);
        }
    }
    return table.back();
}

std::string Hint(std::string_view nearest)
{
    return nearest.empty() ? std::string() : "; did you mean " + std::string(nearest) + "?";
}

std::string Shown(const std::string& bytes)
{
    return "'" + Text::SafeText(FromParser(bytes)) + "'";
}

void RefuseUnknownCommand(const CLI::App& program, const Argument& first)
{
    std::vector<std::string> names;
    for (const CLI::App* const command : program.get_subcommands([](const CLI::App*) { return true; }))
        names.push_back(command->get_name());
    throw Text::UsageError("there is no command " + Shown(first.bytes) + Hint(NearestWord(first.bytes, names)) +
                           "\nvyr --help lists the commands.");
}

/// The name in an argument such as "--sort=name" or "-qr": of letters that share a dash, the first.
std::string OptionName(const std::string& bytes)
{
    constexpr std::size_t shortLength = 2;
    return bytes.starts_with("--") ? bytes.substr(0, bytes.find('=')) : bytes.substr(0, shortLength);
}

} // namespace

void RefuseUnknownWords(const CLI::App& program, const CLI::App& command, const std::vector<Argument>& arguments)
{
    if (&command == &program && !arguments.empty() && arguments.front().role == ArgumentRole::Plain)
        RefuseUnknownCommand(program, arguments.front());
    const std::string name = &command == &program ? "vyr" : "vyr " + command.get_name();
    for (const Argument& argument : arguments) {
        const std::string option = OptionName(argument.bytes);
        if (argument.role != ArgumentRole::Option || command.get_option_no_throw(option))
            continue;
        std::vector<std::string> known;
        for (const CLI::Option* const one : command.get_options())
            for (const std::string& longName : one->get_lnames())
                known.push_back("--" + longName);
        const std::string_view nearest = option.starts_with("--") ? NearestWord(option, known) : std::string_view();
        throw Text::UsageError(name + " has no option " + Shown(option) + Hint(nearest) + "\n" + name +
                               " --help lists its options.");
    }
}

std::string_view NearestWord(std::string_view typed, std::span<const std::string> words)
{
    std::string_view nearest;
    // A third of the letters may be wrong; what begins a word is as near as one wrong letter.
    std::size_t least = std::max<std::size_t>(typed.size() / 3, 1) + 1;
    for (const std::string& word : words) {
        // Far too long a text is not compared: it may have any length.
        if (typed.size() > 2 * word.size())
            continue;
        const bool begins = typed.size() > 1 && word.starts_with(typed);
        const std::size_t distance = begins ? 1 : Distance(typed, word);
        if (distance < least) {
            least = distance;
            nearest = word;
        }
    }
    return nearest;
}

} // namespace VyrHost::Cli
