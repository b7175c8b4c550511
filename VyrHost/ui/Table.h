/// @file
/// A table of old and new names for people.
#pragma once

#include <VyrHost/ui/Output.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

namespace VyrHost::Ui {

/// The importance of a row.
enum class Tone : std::uint8_t
{
    Plain,
    Faint,
    Notable,
    Bad
};

/// The escape sequence that begins the colour of `tone`; empty for a plain one.
[[nodiscard]] std::string_view ColourOf(Tone tone);

/// A name and the text before it; refers to the texts.
struct ShownName
{
    std::u16string_view folder;
    std::u16string_view name;
};

struct TableRow
{
    ShownName from;
    /// Empty where there is none; then there is no arrow.
    ShownName to;
    CString note;
    Tone tone = Tone::Plain;
};

/// Returns the row at an index, from 0; called twice for each. The texts of a row must live until the next call.
using RowOfTable = std::function<TableRow(std::size_t index)>;

/// The greatest width to which columns are aligned where rows may have any length.
inline constexpr int mostPadding = 60;

/// The layout of a table.
struct TableStyle
{
    /// The width of the terminal in columns; 0: rows may have any length. A row that does not fit has lines of its own
    /// for the new name and the note; no part of a name is ever left out.
    int width = 0;
    bool inColour = false;
};

/// The style for the standard output: that of the terminal, in colour unless NO_COLOR is set or TERM is "dumb"; plain
/// text without a terminal.
[[nodiscard]] TableStyle StyleOfOutput();

/// Writes `count` rows in three columns, with texts escaped by SafeText.
void WriteTable(OutputBuffer& output, std::size_t count, const RowOfTable& rowOf, TableStyle style);

} // namespace VyrHost::Ui
