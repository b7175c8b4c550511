/// @file
/// The short help of commands that have many options, and the topics of "vyr help".
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace VyrHost::Cli {

/// A text of "vyr help".
struct HelpTopic
{
    const char* name;
    /// A line of the list of topics.
    const char* summary;
    /// The groups of options of "vyr rename" that belong to it; their descriptions are before the text.
    std::span<const char* const> groups;
    const char* text;
    /// Returns the table before the text; null for a topic without one.
    std::string (*table)() = nullptr;
};

[[nodiscard]] std::span<const HelpTopic> HelpTopics();

/// The table of the topic "tokens": the tokens of --name with their meanings, their changes and counters, in lines of
/// at most 80 columns.
[[nodiscard]] std::string TokensTopic();

/// What `vyr COMMAND --help` shows instead of all options; empty for a command that shows them all.
[[nodiscard]] std::string ShortHelp(std::string_view command);

/// The groups of the options of "vyr rename" and of those that choose files.
namespace OptionGroup {

inline constexpr const char* rules = "Rules, applied in the order given";
inline constexpr const char* settings = "Settings of the rule before them";
inline constexpr const char* where = "Where they go";
inline constexpr const char* sources = "What to rename";
inline constexpr const char* choice = "Which of them";
inline constexpr const char* order = "Order and numbers";
inline constexpr const char* conflicts = "When a name is taken";
inline constexpr const char* run = "What is done and shown";

} // namespace OptionGroup

} // namespace VyrHost::Cli
