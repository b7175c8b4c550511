/// @file
/// Pairs of old and new names from a table.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string_view>
#include <vector>

namespace VyrHost::Rename {

struct NamePair
{
    CString from;
    CString to;
};

/// Reads two columns from the bytes of a table. The first line decides what separates them: a tab where it has one
/// outside quoted fields, then everything stands as it is; else it is CSV (RFC 4180: a field in double quotes may hold
/// separators and line ends, two double quotes in it are one) with commas, or with semicolons where only a semicolon
/// makes two fields of that line. Empty lines are skipped, a mark of UTF-8 in front too. Bytes that are not UTF-8 stay
/// what they are, as in names.
/// @throws UsageError, with the number of the line, for a line that has not exactly two fields, an empty field, one
/// with a NUL, and a quoted field without its end; for text in UTF-16.
[[nodiscard]] std::vector<NamePair> ParsePairs(std::string_view bytes);

} // namespace VyrHost::Rename
