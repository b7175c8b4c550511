/// @file
/// Options as a text that people can read, edit and share: the form of kept rules.
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
    /// Where it stands, from 1 on.
    std::size_t number = 0;
};

/// Reads options, one a line, in UTF-8: words are separated by blanks; in double quotes a word may hold blanks, or
/// nothing, and two double quotes in it are one. Everything else, backslashes too, is literal. Empty lines, and lines
/// that begin with "#", say nothing.
///
/// Example: `--regex "^(.+) - (.+)$" "$2 - $1"`.
/// @throws UsageError for quotes that are not closed or have something behind them, a NUL, and more than 1 MiB.
[[nodiscard]] std::vector<OptionLine> ReadOptionLines(std::string_view text);

/// The line of an option, with a line end; ReadOptionLines gives the same words.
/// @throws UsageError for a word with a line end or a NUL, which a line cannot hold.
[[nodiscard]] std::string WriteOptionLine(const std::vector<CString>& words);

/// Throws a UsageError that names the line.
[[noreturn]] void RefuseLine(std::size_t number, const std::string& reason);

} // namespace VyrHost::Rename
