/// @file
/// Options that hold a text, one of some words, or nothing.
#pragma once

#include <VyrHost/cli/ArgumentText.h>
#include <VyrHost/text/UsageError.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace VyrHost::Cli {

/// Adds the option `name` to `command`. `text` gets its value, and must live as long.
/// @param value  what the value is called in the help.
void AddText(CLI::App& command, const char* name, std::optional<std::string>& text, const char* value, const char* help,
             const char* group);
/// Adds an option without a value likewise.
void AddFlag(CLI::App& command, const char* name, bool& flag, const char* help, const char* group);

/// A word of an option and what it stands for.
template <class Value>
using Words = std::vector<std::pair<const char*, Value>>;

/// What the word `text` stands for; the first of `words` when the option is not given.
/// @throws UsageError for any other text.
template <class Value>
[[nodiscard]] Value ReadWord(const std::optional<std::string>& text, const char* option, const Words<Value>& words)
{
    if (!text)
        return words.front().second;
    std::string expected;
    for (const auto& [word, value] : words) {
        if (*text == word)
            return value;
        expected.append(expected.empty() ? "" : ", ").append(word);
    }
    Text::RefuseValue(option, FromParser(*text), "one of " + expected + " is expected");
}

} // namespace VyrHost::Cli
