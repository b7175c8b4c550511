// Turns arguments into the parser's bytes and back.
#include <VyrHost/cli/ArgumentText.h>

#include <VyrPlatform/text/Encoding.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <string_view>

namespace VyrHost::Cli {

namespace {

/// Stands in front of an argument that begins with what the parser would take for a list or an option. No option begins
/// with it.
constexpr char Guard = '\xFF';

std::string Guarded(std::string bytes, std::string_view guardedStarts)
{
    if (!bytes.empty() && guardedStarts.find(bytes.front()) != std::string_view::npos)
        bytes.insert(bytes.begin(), Guard);
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
        }
        cut.push_back(std::move(argument));
    }
    return cut;
}

std::vector<std::string> ToParser(const std::vector<Argument>& arguments)
{
    constexpr std::string_view ListStarts = "[\xFF";
    constexpr std::string_view ListAndOptionStarts = "-[\xFF";
    std::vector<std::string> texts;
    bool arePlain = false;
    for (const Argument& argument : arguments) {
        if (argument.role == ArgumentRole::EndOfOptions)
            arePlain = true;
        else
            texts.push_back(Guarded(argument.bytes, arePlain ? ListAndOptionStarts : ListStarts));
    }
    std::reverse(texts.begin(), texts.end());
    return texts;
}

CString FromParser(const std::string& bytes)
{
    std::string_view text = bytes;
    if (text.starts_with(Guard))
        text.remove_prefix(1);
    return VyrPlatform::Encoding::FromNameBytes(text);
}

} // namespace VyrHost::Cli
