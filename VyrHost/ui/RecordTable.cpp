#include <VyrHost/ui/RecordTable.h>

#include <VyrHost/model/NaturalOrder.h>
#include <VyrHost/text/Errors.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace VyrHost::Ui {

namespace {

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::FileUtils;

constexpr std::u16string_view allColumns = u"all";

std::size_t FindColumn(std::span<const RecordColumn> columns, const CString& name, const std::string& option)
{
    const auto found = std::find_if(columns.begin(), columns.end(), [&name](const RecordColumn& column) {
        return name.CompareNoCase(VyrPlatform::Encoding::FromUtf8(column.name)) == 0;
    });
    if (found == columns.end())
        Text::RefuseValue(option, name, "the columns are " + NamesOf(columns));
    return static_cast<std::size_t>(found - columns.begin());
}

template <class Value>
int CompareNumbers(Value left, Value right)
{
    return left < right ? -1 : left > right ? 1 : 0;
}

int CompareTexts(std::u16string_view left, std::u16string_view right)
{
    if (left == right)
        return 0;
    return Model::IsNaturallyLess(left, right) ? -1 : 1;
}

/// Compares two values of one kind.
int CompareValues(const RecordValue& left, const RecordValue& right)
{
    if (const auto* const text = std::get_if<CString>(&left))
        return CompareTexts(*text, std::get<CString>(right));
    if (const auto* const number = std::get_if<std::int64_t>(&left))
        return CompareNumbers(*number, std::get<std::int64_t>(right));
    if (const auto* const date = std::get_if<RecordDate>(&left))
        return CompareNumbers<double>(date->local, std::get<RecordDate>(right).local);
    if (const auto* const flag = std::get_if<bool>(&left))
        return CompareNumbers<int>(*flag, std::get<bool>(right));
    return 0;
}

/// A merge sort, which always ends with every row in the list. The sorts of the standard library have undefined
/// behaviour for an order that is cyclic.
template <class IsLater>
void MergeSort(std::vector<std::size_t>& rows, const IsLater& isLater)
{
    std::vector<std::size_t> merged(rows.size());
    for (std::size_t length = 1; length < rows.size(); length *= 2) {
        for (std::size_t begin = 0; begin < rows.size(); begin += 2 * length) {
            const std::size_t middle = std::min(begin + length, rows.size());
            const std::size_t end = std::min(begin + 2 * length, rows.size());
            std::size_t left = begin;
            std::size_t right = middle;
            for (std::size_t place = begin; place < end; ++place) {
                const bool takesRight = left == middle || (right < end && isLater(rows[left], rows[right]));
                merged[place] = takesRight ? rows[right++] : rows[left++];
            }
        }
        rows.swap(merged);
    }
}

CString DateText(const RecordDate& date)
{
    const COleDateTime& local = date.local;
    if (local.GetStatus() != COleDateTime::valid)
        return {};
    CString text;
    text.Format(u"%04d-%02d-%02d", local.GetYear(), local.GetMonth(), local.GetDay());
    if (!date.hasTime)
        return text;
    CString time;
    time.Format(u"T%02d:%02d:%02d", local.GetHour(), local.GetMinute(), local.GetSecond());
    CString offset;
    if (date.minutesAheadOfUtc) {
        const int minutes = std::abs(*date.minutesAheadOfUtc);
        offset.Format(u"%s%02d:%02d", std::u16string_view(*date.minutesAheadOfUtc < 0 ? u"-" : u"+"), minutes / 60,
                      minutes % 60);
    }
    return CString::Join({text, time, offset});
}

CString NumberText(std::int64_t number)
{
    CString text;
    text.Format(u"%d", number);
    return text;
}

} // namespace

RecordValue ValueOf(const CString& text)
{
    return text.IsEmpty() ? RecordValue() : RecordValue(text);
}

std::vector<std::size_t> UsualColumns(std::span<const RecordColumn> columns)
{
    std::vector<std::size_t> usual;
    for (std::size_t column = 0; column < columns.size(); ++column)
        if (columns[column].isUsual)
            usual.push_back(column);
    return usual;
}

std::vector<std::size_t> FindColumns(std::span<const RecordColumn> columns, std::u16string_view list,
                                     const std::string& option)
{
    std::vector<std::size_t> found;
    if (CString(list).CompareNoCase(allColumns) == 0) {
        found.resize(columns.size());
        std::iota(found.begin(), found.end(), std::size_t{0});
        return found;
    }
    for (;;) {
        const std::size_t comma = std::min(list.find(u','), list.size());
        const CString name(list.substr(0, comma));
        const std::size_t column = FindColumn(columns, name, option);
        if (std::find(found.begin(), found.end(), column) != found.end())
            Text::RefuseValue(option, name, "a column can be shown once");
        found.push_back(column);
        if (comma == list.size())
            return found;
        list.remove_prefix(comma + 1);
    }
}

std::string NamesOf(std::span<const RecordColumn> columns)
{
    std::string names;
    for (const RecordColumn& column : columns)
        names.append(names.empty() ? "" : ", ").append(column.name);
    return names;
}

void SortRows(RecordTable& table, std::size_t column, bool isDescending)
{
    const int direction = isDescending ? -1 : 1;
    if (const auto& compare = table.columns[column].compareRows) {
        MergeSort(table.rows, [&compare, direction](std::size_t left, std::size_t right) {
            return direction * compare(left, right) > 0;
        });
        return;
    }
    // Each value is read once; what is sorted are indexes into this list.
    std::vector<RecordValue> values;
    values.reserve(table.rows.size());
    for (const std::size_t row : table.rows)
        values.push_back(table.valueAt(row, column));
    std::vector<std::size_t> places(values.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    MergeSort(places, [&values, direction](std::size_t left, std::size_t right) {
        const bool hasLeft = values[left].index() != 0;
        const bool hasRight = values[right].index() != 0;
        return hasLeft && hasRight ? direction * CompareValues(values[left], values[right]) > 0 : hasRight && !hasLeft;
    });
    for (std::size_t& place : places)
        place = table.rows[place];
    table.rows = std::move(places);
}

CString ShownText(const RecordValue& value, RecordKind kind)
{
    if (const auto* const text = std::get_if<CString>(&value))
        return *text;
    if (const auto* const number = std::get_if<std::int64_t>(&value))
        return kind == RecordKind::Size ? FileUtils::GetFileSize(*number, 0) : NumberText(*number);
    if (const auto* const date = std::get_if<RecordDate>(&value))
        return date->hasTime ? DateTimeUtils::GetFormatedDateTime(date->local)
                             : DateTimeUtils::GetFormatedDate(date->local);
    const auto* const flag = std::get_if<bool>(&value);
    return flag && *flag ? CString(u"yes") : CString();
}

CString PlainText(const RecordValue& value)
{
    if (const auto* const text = std::get_if<CString>(&value))
        return *text;
    if (const auto* const number = std::get_if<std::int64_t>(&value))
        return NumberText(*number);
    if (const auto* const date = std::get_if<RecordDate>(&value))
        return DateText(*date);
    const auto* const flag = std::get_if<bool>(&value);
    if (!flag)
        return {};
    return *flag ? u"true" : u"false";
}

} // namespace VyrHost::Ui
