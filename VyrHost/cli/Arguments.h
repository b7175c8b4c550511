/// @file
/// Converts arguments for the parser of the command line, which works on bytes, and refuses unknown ones.
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
    /// The command, or a file or text for it.
    Plain,
    /// Begins with "-", and is not a value of the option before it.
    Option,
    Value,
    /// "--": every argument after it is a plain one.
    EndOfOptions
};

struct Argument
{
    /// The argument in the parser's form; see FromParser.
    std::string bytes;
    ArgumentRole role;
};

/// The command that `arguments` begin with; `program` itself if they do not begin with one.
[[nodiscard]] const CLI::App& CommandOf(const CLI::App& program, const std::vector<CString>& arguments);
/// Classifies `arguments` by the options of the command that they begin with.
[[nodiscard]] std::vector<Argument> CutArguments(const CLI::App& program, const std::vector<CString>& arguments);
/// `arguments` for the parser, in reverse order. Each stays one text (the parser would read "[a,b]" as two).
[[nodiscard]] std::vector<std::string> ToParser(const std::vector<Argument>& arguments);
/// The argument that the parser read as `bytes`.
[[nodiscard]] CString FromParser(const std::string& bytes);

/// Refuses an unknown command or option, and names the nearest known one.
/// @param command  CommandOf the arguments.
/// @throws UsageError
void RefuseUnknownWords(const CLI::App& program, const CLI::App& command, const std::vector<Argument>& arguments);

} // namespace VyrHost::Cli
