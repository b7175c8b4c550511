/// @file
/// Arguments on their way through the parser of the command line, which works on bytes.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// The bytes of `arguments`, the last argument first, as the parser of `program` takes them. Each stays one text (the
/// parser would read "[a,b]" as two), and "--" makes every one behind it a plain argument.
[[nodiscard]] std::vector<std::string> ToParser(const CLI::App& program, const std::vector<CString>& arguments);
/// The argument that the parser read as `bytes`.
[[nodiscard]] CString FromParser(const std::string& bytes);

} // namespace VyrHost::Cli
