// Converts arguments to the parser's bytes and back.
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

/// Precedes an argument that the parser would read as a list or an option. No option begins with it.
constexpr char guard = '\xFF';

std::string Guarded(std::string bytes, std::string_view guardedStarts)
{
    if (!bytes.empty() && guardedStarts.find(bytes.front()) != std::string_view::npos)
        bytes.insert(bytes.begin(), guard);
    return bytes;
}

/// How many of the arguments after `argument` are its values; 0 unless it is an option of `command`.
std::size_t ValuesBehind(const CLI::App& command, const std::string& argument)
{
    const std::size_t equals = argument.find('=');
    const CLI::Option* const option = command.get_option_no_throw(argument.substr(0, equals));
    if (!option)
        return 0;
    const auto values = static_cast<std::size_t>(option->get_items_expected_min());
    return values > 0 && equals != std::string::npos ? values - 1 : values;
}

/// The parser would read the next argument as the value that "--option=" lacks.
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

std::string Shown(const std::string& bytes)
{
    return "'" + Text::SafeText(FromParser(bytes)) + "'";
}

void RefuseUnknownCommand(const CLI::App& program, const Argument& first)
{
    std::vector<std::string> names;
    for (const CLI::App* const command : program.get_subcommands([](const CLI::App*) { return true; }))
        names.push_back(command->get_name());
    throw Text::UsageError("there is no command " + Shown(first.bytes) + Text::Hint(first.bytes, names) +
                           "\nvyr --help lists the commands.");
}

/// The name in an argument such as "--sort=name" or "-qr": the first of letters that share a dash.
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
        throw Text::UsageError(
            name + " has no option " + Shown(option) +
            (option.starts_with("--") ? Text::Hint(option, known) : std::string()) + "\n" +
            (ShortHelp(command.get_name()).empty() ? name + " --help" : "vyr help " + command.get_name()) +
            " lists its options.");
    }
}

} // namespace VyrHost::Cli
