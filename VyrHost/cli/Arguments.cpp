// Turns arguments into the parser's bytes and back.
#include <VyrHost/cli/Arguments.h>

#include <VyrHost/cli/HelpTopics.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/NearestWord.h>
#include <VyrHost/text/SafeText.h>
#include <VyrPlatform/text/Encoding.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace VyrHost::Cli {

namespace {

/// Stands in front of an argument that begins with what the parser would take for a list or an option. No option begins
/// with it.
constexpr char guard = '\xFF';

std::string Guarded(std::string bytes, std::string_view guardedStarts)
{
    if (!bytes.empty() && guardedStarts.find(bytes.front()) != std::string_view::npos)
        bytes.insert(bytes.begin(), guard);
    return bytes;
}

/// How many of the arguments behind `argument` are its values; 0 unless it is an option of `command`.
std::size_t ValuesBehind(const CLI::App& command, const std::string& argument)
{
    const std::size_t equals = argument.find('=');
    const CLI::Option* const option = command.get_option_no_throw(argument.substr(0, equals));
    if (!option)
        return 0;
    const auto values = static_cast<std::size_t>(option->get_items_expected_min());
    return values > 0 && equals != std::string::npos ? values - 1 : values;
}

/// The parser would take the next argument for the value that is missing in "--option=".
void RefuseEmptyValue(const CLI::App& command, const std::string& argument)
{
    const std::string name = argument.substr(0, argument.find('='));
    const CLI::Option* const option = command.get_option_no_throw(name);
    if (option && option->get_items_expected_min() > 0 && argument.size() == name.size() + 1)
        throw Text::UsageError(name + "= is given no value; an empty one is given by " + name + " \"\"");
}

} // namespace

const CLI::App& CommandOf(const CLI::App& program, const std::vector<CString>& arguments)
{
    if (arguments.empty())
        return program;
    const std::string name = VyrPlatform::Encoding::ToNameBytes(arguments.front());
    const auto named =
        program.get_subcommands([&name](const CLI::App* command) { return command->get_name() == name; });
    return named.empty() ? program : *named.front();
}

std::vector<Argument> CutArguments(const CLI::App& program, const std::vector<CString>& arguments)
{
    const CLI::App& command = CommandOf(program, arguments);
    std::vector<Argument> cut;
    std::size_t values = 0;
    bool arePlain = false;
    for (const CString& text : arguments) {
        Argument argument{VyrPlatform::Encoding::ToNameBytes(text), ArgumentRole::Plain};
        if (values > 0) {
            argument.role = ArgumentRole::Value;
            --values;
        } else if (!arePlain && argument.bytes == "--") {
            argument.role = ArgumentRole::EndOfOptions;
            arePlain = true;
        } else if (!arePlain && argument.bytes.size() > 1 && argument.bytes.starts_with('-')) {
            argument.role = ArgumentRole::Option;
            values = ValuesBehind(command, argument.bytes);
            RefuseEmptyValue(command, argument.bytes);
        }
        cut.push_back(std::move(argument));
    }
    return cut;
}

std::vector<std::string> ToParser(const std::vector<Argument>& arguments)
{
    constexpr std::string_view listStarts = "[\xFF";
    constexpr std::string_view listAndOptionStarts = "-[\xFF";
    std::vector<std::string> texts;
    bool arePlain = false;
    for (const Argument& argument : arguments) {
        if (argument.role == ArgumentRole::EndOfOptions)
            arePlain = true;
        else
            texts.push_back(Guarded(argument.bytes, arePlain ? listAndOptionStarts : listStarts));
    }
    std::reverse(texts.begin(), texts.end());
    return texts;
}

CString FromParser(const std::string& bytes)
{
    std::string_view text = bytes;
    if (text.starts_with(guard))
        text.remove_prefix(1);
    return VyrPlatform::Encoding::FromNameBytes(text);
}

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

std::string Shown(const std::string& bytes)
{
    return "'" + Text::SafeText(FromParser(bytes)) + "'";
}

void RefuseUnknownCommand(const CLI::App& program, const Argument& first)
{
    std::vector<std::string> names;
    for (const CLI::App* const command : program.get_subcommands([](const CLI::App*) { return true; }))
        names.push_back(command->get_name());
    throw Text::UsageError("there is no command " + Shown(first.bytes) + HintAt(NearestWord(first.bytes, names)) +
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
        throw Text::UsageError(
            name + " has no option " + Shown(option) + HintAt(nearest) + "\n" +
            (ShortHelp(command.get_name()).empty() ? name + " --help" : "vyr help " + command.get_name()) +
            " lists its options.");
    }
}

std::string_view NearestWord(std::string_view typed, std::span<const std::string> words)
{
    std::string_view nearest;
    // A third of the letters may be wrong; what begins a word is as near as one wrong letter.
    std::size_t least = std::max<std::size_t>(typed.size() / 3, 1) + 1;
    for (const std::string& word : words) {
        // A text may have any length; one that is far too long is not compared.
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

std::string HintAt(std::string_view nearest)
{
    return nearest.empty() ? std::string() : "; did you mean " + std::string(nearest) + "?";
}

} // namespace VyrHost::Cli
