// Lists the tokens from their table.
#include <VyrHost/cli/HelpTopics.h>

#include <VyrHost/cli/Help.h>
#include <VyrHost/rename/NameTokens.h>

#include <algorithm>
#include <cstddef>

namespace VyrHost::Cli {

namespace {

constexpr const char* usage =
    R"~(
A file without a value for a token is refused in its row, unless the token has
a text for that: <Artist?Unknown>. Changes follow behind bars, one after the
other: <Title|ascii|replace ' ' _>. They are upper, lower, title, ascii, trim,
pad N and replace A B. The extension stays, unless the template ends in
.<Extension>.

Counters: <###> begins with 001. Behind a colon stand start N, step N,
per folder, per day, per name (where it restarts), and roman, letters, hex.

)~";

} // namespace

std::string TokensTopic()
{
    std::string text = "Tokens of --name:\n";
    for (const Rename::TokenHelp& token : Rename::TokenTable()) {
        std::string line = "  ";
        line += token.form;
        line.resize(std::max(line.size() + 1, std::size_t{helpColumn}), ' ');
        text += line + token.meaning + "\n";
    }
    return WrapHelp(text + usage);
}

} // namespace VyrHost::Cli
