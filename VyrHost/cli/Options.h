/// @file
/// Declares and reads options, and checks which go together.
#pragma once

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/text/Errors.h>

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace VyrHost::Cli {

/// Adds the option `name` to `command`. `text` gets its value, and must live as long as the command.
/// @param value  the name of the value in the help.
void AddText(CLI::App& command, const char* name, std::optional<std::string>& text, const char* value, const char* help,
             const char* group);
/// Adds an option that may be repeated, each time with `count` values.
CLI::Option& AddTexts(CLI::App& command, const char* name, const char* values, const std::string& help,
                      const char* group, int count = 1);
/// All values given with an option of AddTexts.
[[nodiscard]] std::vector<CString> TextsOf(const CLI::App& command, const char* name);
/// Adds an option without a value.
void AddFlag(CLI::App& command, const char* name, bool& flag, const char* help, const char* group);

/// A word of an option and its meaning.
template <class Value>
using Words = std::vector<std::pair<const char*, Value>>;

/// The meaning of the word `text`; that of the first of `words` when the option is not given.
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

/// Two options, or an option and an argument, that contradict each other.
struct ExclusivePair
{
    const char* option;
    const char* other;
    /// The reason, if it is not obvious; else null.
    const char* why = nullptr;
};

/// An option that has no effect without another one.
struct DependentOption
{
    const char* option;
    const char* needed;
};

/// Checks the given options of `command`.
/// @throws UsageError for the first pair that does not go together, and the first option without effect.
void CheckOptionPairs(const CLI::App& command, std::span<const ExclusivePair> exclusive,
                      std::span<const DependentOption> dependent = {});

/// The message for an option that has no effect without `needed`.
[[nodiscard]] std::string WithoutEffect(const std::string& option, const std::string& needed);

} // namespace VyrHost::Cli
