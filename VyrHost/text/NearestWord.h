/// @file
/// Finds the word that a misspelt word probably means.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace VyrHost::Text {

/// The one of `words` that `typed` probably means: with few letters added, left out, changed or swapped, or one that
/// begins with it, ignoring case; empty if none is near. Example: "renmae" is "rename".
[[nodiscard]] std::string_view NearestWord(std::string_view typed, std::span<const std::string> words);

/// "; did you mean rename?" for that word, between `before` and `behind`; empty if none is near. Example: with "<" and
/// ">" it is "; did you mean <Name>?".
[[nodiscard]] std::string Hint(std::string_view typed, std::span<const std::string> words, std::string_view before = {},
                               std::string_view behind = {});

} // namespace VyrHost::Text
