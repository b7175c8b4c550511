/// @file
/// Parses lists of names: pairs of old and new names in a table, and names from an editor.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace VyrHost::Rename {

struct NamePair
{
    CString from;
    CString to;
};

/// Parses a table with two columns (TableReader, Columns::Two). Bytes that are not UTF-8 are kept, as in names.
/// @throws UsageError, with the number of the line, for a line without exactly two fields, an empty field, a field with
/// a NUL, and an unclosed quoted field; also for text in UTF-16.
[[nodiscard]] std::vector<NamePair> ParsePairs(std::string_view bytes);

/// A name for the edited text: characters that would end the line, and lone surrogates, become escapes (`\n`, `\t`,
/// `\udcff`); a backslash is doubled.
[[nodiscard]] std::string EscapeName(std::u16string_view name);
/// The inverse. An escape that EscapeName does not write is literal.
[[nodiscard]] CString UnescapeName(std::string_view text);

/// The text for editing `names`: explanations, then a line for each with its number (from 1), a tab and the name.
[[nodiscard]] std::string TextForEditing(const std::vector<CString>& names);

/// Parses an edited text: the names by their indexes from 0. Lines may have been removed. Lines that begin with "#" and
/// empty ones are ignored.
/// @throws UsageError for a line without number and tab, an unknown or duplicate number, and an empty name.
[[nodiscard]] std::unordered_map<std::uint32_t, CString> ParseEdited(std::string_view text, std::size_t count);

} // namespace VyrHost::Rename
