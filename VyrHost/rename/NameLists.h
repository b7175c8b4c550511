/// @file
/// Lists of names as users write them: pairs of old and new names in a table, and names in an editor.
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

/// Reads the bytes of a table with two columns (TableReader, Columns::Two). Bytes that are not UTF-8 stay what they
/// are, as in names.
/// @throws UsageError, with the number of the line, for a line that has not exactly two fields, an empty field, one
/// with a NUL, and a quoted field without its end; for text in UTF-16.
[[nodiscard]] std::vector<NamePair> ParsePairs(std::string_view bytes);

/// A name as it stands in the text: what would end its line or is no text is an escape (`\n`, `\t`, `\udcff`), a
/// backslash is doubled.
[[nodiscard]] std::string EscapeName(std::u16string_view name);
/// The name again. An escape that EscapeName does not write stands for itself.
[[nodiscard]] CString UnescapeName(std::string_view text);

/// The text for `names`: a line for each, its number from 1 and a tab in front, after lines that explain it.
[[nodiscard]] std::string TextForEditing(const std::vector<CString>& names);

/// The names in an edited text, by their places from 0. Lines taken out are not in it. Lines that begin with "#" and
/// empty ones do not count.
/// @throws UsageError for a line without number and tab, a number that was not in the list or stands there twice, and
/// an empty name.
[[nodiscard]] std::unordered_map<std::uint32_t, CString> ParseEdited(std::string_view text, std::size_t count);

} // namespace VyrHost::Rename
