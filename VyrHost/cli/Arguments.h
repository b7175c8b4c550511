/// @file
/// Arguments on their way through the parser of the command line, which works on bytes; unknown ones are refused.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

enum class ArgumentRole : std::uint8_t
{
    /// The command, or what it is about.
    Plain,
    /// Begins with "-", and is no value of the option before it.
    Option,
    Value,
    /// "--": every argument behind it is a plain one.
    EndOfOptions
};

struct Argument
{
    /// As the parser takes texts; see FromParser.
    std::string bytes;
    ArgumentRole role;
};

/// The command that `arguments` begin with; `program` itself where they do not begin with one.
[[nodiscard]] const CLI::App& CommandOf(const CLI::App& program, const std::vector<CString>& arguments);
/// What each of `arguments` is to the command that they begin with.
[[nodiscard]] std::vector<Argument> CutArguments(const CLI::App& program, const std::vector<CString>& arguments);
/// `arguments` for the parser, the last one first. Each stays one text (the parser would read "[a,b]" as two).
[[nodiscard]] std::vector<std::string> ToParser(const std::vector<Argument>& arguments);
/// The argument that the parser read as `bytes`.
[[nodiscard]] CString FromParser(const std::string& bytes);

/// Refuses an unknown command or option, and names the nearest known one.
/// @param command  CommandOf the arguments.
/// @throws UsageError
void RefuseUnknownWords(const CLI::App& program, const CLI::App& command, const std::vector<Argument>& arguments);

} // namespace VyrHost::Cli
