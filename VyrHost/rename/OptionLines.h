/// @file
/// Options as text that people can read, edit and share: the form of kept rules.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace VyrHost::Rename {

/// An option with its values, the option first.
struct OptionLine
{
    std::vector<CString> words;
    /// The number of its line, from 1.
    std::size_t number = 0;
};

/// Parses options, one per line, in UTF-8. Words are separated by blanks; a word in double quotes may contain blanks or
/// be empty, and two double quotes in it are one. Everything else, including backslashes, is literal. Empty lines and
/// lines that begin with "#" are ignored.
///
/// Example: `--regex "^(.+) - (.+)$" "$2 - $1"`.
/// @throws UsageError for unclosed quotes, quotes followed by text, a NUL, and more than 1 MiB.
[[nodiscard]] std::vector<OptionLine> ReadOptionLines(std::string_view text);

/// The line of an option, with a line end; the inverse of ReadOptionLines.
/// @throws UsageError for a word with a line end or a NUL.
[[nodiscard]] std::string WriteOptionLine(const std::vector<CString>& words);

/// Throws a UsageError that names the line.
[[noreturn]] void RefuseLine(std::size_t number, const std::string& reason);

} // namespace VyrHost::Rename
