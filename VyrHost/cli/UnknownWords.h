/// @file
/// Commands and options that there are not.
#pragma once

#include <VyrHost/cli/ArgumentText.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace VyrHost::Cli {

/// Refuses an unknown command or option with the nearest one that there is.
/// @param command  CommandOf the arguments.
/// @throws UsageError
void RefuseUnknownWords(const CLI::App& program, const CLI::App& command, const std::vector<Argument>& arguments);

/// The one of `words` that `typed` was probably meant to be: with few letters added, left out, changed or swapped, or
/// one that it begins; empty where none is near. Example: "renmae" is "rename".
[[nodiscard]] std::string_view NearestWord(std::string_view typed, std::span<const std::string> words);

} // namespace VyrHost::Cli
