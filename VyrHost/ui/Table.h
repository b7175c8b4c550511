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

/// How much a row asks for notice.
enum class Tone : std::uint8_t
{
    Plain,
    Faint,
    Notable,
    Bad
};

/// The escape sequence that begins the colour of `tone`; empty for a plain one.
[[nodiscard]] std::string_view ColourOf(Tone tone);

/// A name and what stands before it. The texts live elsewhere.
struct ShownName
{
    std::u16string_view folder;
    std::u16string_view name;
};

struct TableRow
{
    ShownName from;
    /// Empty where there is none; the arrow is then left out.
    ShownName to;
    CString note;
    Tone tone = Tone::Plain;
};

/// Answers the row of a place in the table, from 0; asked twice for each. The texts of a row must live until the next
/// one is asked for.
using RowOfTable = std::function<TableRow(std::size_t index)>;

/// How a table is laid out.
struct TableStyle
{
    /// The columns of the terminal; 0: rows are as long as their names. A row that does not fit gets lines of its own
    /// for the new name and the note; no part of a name is ever left out.
    int width = 0;
    bool inColour = false;
};

/// The style for the standard output: that of the terminal, in colour unless NO_COLOR is set or TERM
/// is "dumb"; plain text elsewhere.
[[nodiscard]] TableStyle StyleOfOutput();

/// Writes `count` rows in three columns. Texts are shown as SafeText makes them.
void WriteTable(OutputBuffer& output, std::size_t count, const RowOfTable& rowOf, TableStyle style);

} // namespace VyrHost::Ui
