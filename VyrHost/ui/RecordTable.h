/// @file
/// Lists of records as data: columns, and a value for each row and column. Writers (RecordWriters.h and others) write
/// them for people and programs.
///
/// A command describes its columns once, each with the function that gets its value from a record, and passes the table
/// to the writer for the requested format:
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

/// The kind of the values of a column.
enum class RecordKind : std::uint8_t
{
    Text,
    Number,
    /// A number of bytes.
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
    /// The offset of local time from UTC, where it is known.
    std::optional<int> minutesAheadOfUtc = {};
};

/// The value of a row in a column: none, or the type for the column's kind (CString for Text, std::int64_t for Number
/// and Size, RecordDate for Date, bool for Flag).
using RecordValue = std::variant<std::monostate, CString, std::int64_t, RecordDate, bool>;

/// `text`; no value where it is empty.
[[nodiscard]] RecordValue ValueOf(const CString& text);

enum class RecordAlignment : std::uint8_t
{
    /// Numbers and sizes to the right, others to the left.
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
    /// Whether tables have it by default; other formats have all columns.
    bool isUsual = false;
    RecordAlignment alignment = RecordAlignment::ByKind;
    /// A custom order of rows by this column: negative, 0 or positive. It may be cyclic; the sort ends all the same, in
    /// some order.
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
    /// The indexes of the columns that are written, in this order.
    std::vector<std::size_t> shown;
    /// The indexes of the rows that are written, in this order.
    std::vector<std::size_t> rows;
    /// The value of a row in a column; called several times for each.
    std::function<RecordValue(std::size_t row, std::size_t column)> valueAt;
    /// The importance of a row; empty where all are plain.
    std::function<Tone(std::size_t row)> toneOf = {};
    /// What the list is called, for people.
    std::string_view title = {};
    /// The path of the file that a row is about; empty where rows are about no files.
    std::function<CString(std::size_t row)> fileOf = {};
};

/// A column, and the function that gets its value from a record.
template <class Record>
struct RecordField
{
    RecordColumn column;
    RecordValue (*valueOf)(const Record& record);
};

/// For RecordField::valueOf: what `make` makes of the value that `members` lead to, each a member of what the one
/// before leads to.
template <auto make, auto... members, class Record>
[[nodiscard]] RecordValue ValueAt(const Record& record)
{
    return make((record.*....*members));
}
/// The same for a text.
template <auto... members, class Record>
[[nodiscard]] RecordValue TextAt(const Record& record)
{
    return ValueOf((record.*....*members));
}

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

/// The indexes of the columns that tables have by default.
[[nodiscard]] std::vector<std::size_t> UsualColumns(std::span<const RecordColumn> columns);

/// The indexes of the columns in `list`: names separated by commas, without regard to case, or "all".
/// @param option  the option that the list was given with, for messages.
/// @throws UsageError for an unknown name, listing the known ones, and for a name that occurs twice.
[[nodiscard]] std::vector<std::size_t> FindColumns(std::span<const RecordColumn> columns, std::u16string_view list,
                                                   const std::string& option);

/// The names of `columns`, separated by ", ".
[[nodiscard]] std::string NamesOf(std::span<const RecordColumn> columns);

/// Sorts the rows of `table` by `column`. Texts are in natural order (2 before 10, ignoring case), other kinds by
/// value. Rows without a value come last in both directions, and equal rows keep their order.
void SortRows(RecordTable& table, std::size_t column, bool isDescending);

/// `value` for people: a size with its unit, a date in the form of the user's locale, a flag as "yes" or nothing.
[[nodiscard]] CString ShownText(const RecordValue& value, RecordKind kind);

/// `value` for programs: a size in bytes, a date as `2024-01-05`, `2024-01-05T10:30:00` or
/// `2024-01-05T10:30:00+01:00`, a flag as `true` or `false`; empty where there is none.
[[nodiscard]] CString PlainText(const RecordValue& value);

} // namespace VyrHost::Ui
