/// @file
/// Lists of records as data: columns, and a value for each row and column. Writers (RecordWriters.h and others) turn
/// them into what people and programs read.
///
/// A command describes its columns once, says how to get at the value of a row, and hands the table to the writer that
/// was asked for:
///
///     const RecordField<Track> fields[] = {
///         {{"name", "Name", RecordKind::Text, true}, [](const Track& track) { return RecordValue(track.name); }},
///         {{"size", "Size", RecordKind::Size, true}, [](const Track& track) { return RecordValue(track.bytes); }}};
///     RecordTable table = TableOf(tracks, std::span<const RecordField<Track>>(fields));
#pragma once

#include <VyrHost/ui/Table.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <numeric>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace VyrHost::Ui {

/// What the values of a column are.
enum class RecordKind : std::uint8_t
{
    Text,
    Number,
    /// A count of bytes.
    Size,
    Date,
    /// Yes or no.
    Flag
};

/// A date, or a date with a time of day, in local time.
struct RecordDate
{
    COleDateTime local;
    bool hasTime = true;
    /// How far local time was ahead of UTC, where the instant is known.
    std::optional<int> minutesAheadOfUtc = {};
};

/// The value of a row in a column: none, or what the kind of the column says (CString for Text, std::int64_t for Number
/// and Size, RecordDate for Date, bool for Flag).
using RecordValue = std::variant<std::monostate, CString, std::int64_t, RecordDate, bool>;

/// `text`; no value where it is empty.
[[nodiscard]] RecordValue ValueOf(const CString& text);

enum class RecordAlignment : std::uint8_t
{
    /// Numbers and sizes at the right, all else at the left.
    ByKind,
    Left,
    Right
};

/// A column of a list.
struct RecordColumn
{
    /// In lower camel case ("installDate"): the key in JSON, the heading in CSV, the word for --columns and --sort. Not
    /// "all".
    std::string_view name;
    /// For people, in UTF-8.
    std::string_view heading;
    RecordKind kind = RecordKind::Text;
    /// Whether people see it unless they choose columns; programs get all of them.
    bool isUsual = false;
    RecordAlignment alignment = RecordAlignment::ByKind;
    /// An order of rows by this column other than that of its kind: negative, 0 or positive. It may go in circles; the
    /// sort then ends all the same, in some order.
    std::function<int(std::size_t left, std::size_t right)> compareRows = {};

    [[nodiscard]] bool IsRightAligned() const
    {
        return alignment == RecordAlignment::Right ||
               (alignment == RecordAlignment::ByKind && (kind == RecordKind::Number || kind == RecordKind::Size));
    }
};

/// A list of records.
struct RecordTable
{
    std::vector<RecordColumn> columns;
    /// Which columns are written, in which order.
    std::vector<std::size_t> shown;
    /// Which rows are written, in which order. A row that is left out here is not shown.
    std::vector<std::size_t> rows;
    /// The value of a row in a column; asked more than once for each.
    std::function<RecordValue(std::size_t row, std::size_t column)> valueAt;
    /// How much a row asks for notice; empty where all are plain.
    std::function<Tone(std::size_t row)> toneOf = {};
};

/// A column, and where its values stand in a record.
template <class Record>
struct RecordField
{
    RecordColumn column;
    RecordValue (*valueOf)(const Record& record);
};

/// The columns of `fields`.
template <class Record>
[[nodiscard]] std::vector<RecordColumn> ColumnsOf(std::span<const RecordField<Record>> fields)
{
    std::vector<RecordColumn> columns;
    for (const RecordField<Record>& field : fields)
        columns.push_back(field.column);
    return columns;
}

/// A table of all `records` and all columns of `fields`. Both must outlive it.
template <class Record>
[[nodiscard]] RecordTable TableOf(const std::vector<Record>& records, std::span<const RecordField<Record>> fields)
{
    RecordTable table;
    table.columns = ColumnsOf(fields);
    table.shown.resize(fields.size());
    std::iota(table.shown.begin(), table.shown.end(), std::size_t{0});
    table.rows.resize(records.size());
    std::iota(table.rows.begin(), table.rows.end(), std::size_t{0});
    table.valueAt = [&records, fields](std::size_t row, std::size_t column) {
        return fields[column].valueOf(records[row]);
    };
    return table;
}

/// The places of the columns that people see unless they choose.
[[nodiscard]] std::vector<std::size_t> UsualColumns(std::span<const RecordColumn> columns);

/// The places of the columns that `list` names: names separated by commas, without regard to case, or "all".
/// @param option  what the list was given with, for messages.
/// @throws UsageError for a name that there is not, with those that there are, and for one that comes twice.
[[nodiscard]] std::vector<std::size_t> FindColumns(std::span<const RecordColumn> columns, std::u16string_view list,
                                                   const std::string& option);

/// The names of `columns`, separated by ", ".
[[nodiscard]] std::string NamesOf(std::span<const RecordColumn> columns);

/// Sorts the rows of `table` by `column`. Texts are in natural order (2 before 10, upper and lower case together), all
/// else by value. Rows without a value come last in either direction, and rows that are alike stay as they were.
void SortRows(RecordTable& table, std::size_t column, bool isDescending);

/// `value` for people: a size with its unit, a date in the form of the user's locale, a flag as "yes" or nothing.
[[nodiscard]] CString ShownText(const RecordValue& value, RecordKind kind);

/// `value` for programs: a size in bytes, a date as `2024-01-05`, `2024-01-05T10:30:00` or
/// `2024-01-05T10:30:00+01:00`, a flag as `true` or `false`; empty where there is none.
[[nodiscard]] CString PlainText(const RecordValue& value);

} // namespace VyrHost::Ui
