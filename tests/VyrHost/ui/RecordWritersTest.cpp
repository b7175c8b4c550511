// Lists of records as tables, CSV and JSON.
#include <VyrHost/ui/RecordWriters.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using namespace VyrHost::Ui;

namespace {

/// The output of `write`; OutputBuffer writes only to the standard output.
std::string Written(const std::function<void(OutputBuffer&)>& write)
{
    testing::internal::CaptureStdout();
    {
        OutputBuffer output;
        write(output);
    }
    return testing::internal::GetCapturedStdout();
}

/// A list of these values with all its columns.
RecordTable ListOf(std::vector<RecordColumn> columns, std::vector<std::vector<RecordValue>> values)
{
    RecordTable table;
    table.columns = std::move(columns);
    for (std::size_t column = 0; column < table.columns.size(); ++column)
        table.shown.push_back(column);
    for (std::size_t row = 0; row < values.size(); ++row)
        table.rows.push_back(row);
    table.valueAt = [values = std::move(values)](std::size_t row, std::size_t column) {
        return values[row][column];
    };
    return table;
}

RecordValue Text(std::u16string_view text)
{
    return CString(text);
}

RecordTable Programs()
{
    return ListOf({{"name", "Name"}, {"size", "Size", RecordKind::Size}, {"place", "Place"}},
                  {{Text(u"Editor"), std::int64_t{2048}, Text(u"C:\\Editor")},
                   {Text(u"x"), RecordValue(), Text(u"C:\\x")},
                   {Text(u"Big"), std::int64_t{5 << 20}, RecordValue()}});
}

std::string Table(const RecordTable& table, TableStyle style, bool hasHeadings = true)
{
    return Written([&](OutputBuffer& output) { WriteRecords(output, table, style, hasHeadings); });
}

/// The CSV without the CR of its line ends, which the capture drops on Windows only; the tests of the program check
/// them.
std::string Csv(const RecordTable& table)
{
    std::string csv = Written([&](OutputBuffer& output) { WriteRecordCsv(output, table); });
    std::erase(csv, '\r');
    return csv;
}

std::string Json(const RecordTable& table)
{
    return Written([&](OutputBuffer& output) { WriteRecordJson(output, table); });
}

} // namespace

TEST(RecordList, AlignsColumnsAndNumbersToTheRight)
{
    EXPECT_EQ(Table(Programs(), {80}), "Name       Size  Place\n"
                                       "Editor  2.00 KB  C:\\Editor\n"
                                       "x                C:\\x\n"
                                       "Big     5.00 MB\n");
    EXPECT_EQ(Table(Programs(), {}), Table(Programs(), {80}));
}

TEST(RecordList, ShowsTheChosenColumnsInTheirOrder)
{
    RecordTable table = Programs();
    table.shown = {2, 0};
    table.rows = {1, 0};
    EXPECT_EQ(Table(table, {80}, false), "C:\\x       x\nC:\\Editor  Editor\n");
}

TEST(RecordList, WithoutRowsIsEmpty)
{
    RecordTable table = Programs();
    table.rows.clear();
    EXPECT_EQ(Table(table, {80}), "");
    EXPECT_EQ(Csv(table), "\xEF\xBB\xBFname,size,place\n");
    EXPECT_EQ(Json(table), "");
}

TEST(RecordList, WritesValuesThatDoNotFitInLinesOfTheirOwn)
{
    const RecordTable table = ListOf({{"name", "Name"}, {"size", "Size", RecordKind::Number}, {"place", "Place"}},
                                     {{Text(u"a"), std::int64_t{1}, Text(u"0123456789012345678901234567890123456789")},
                                      {Text(u"abcdefghijklmnopqrstuvwxyzabcdef"), std::int64_t{22}, Text(u"p")}});
    EXPECT_EQ(Table(table, {40}), "Name              Size  Place\n"
                                  "a                    1\n"
                                  "    Place: 0123456789012345678901234567890123456789\n"
                                  "abcdefghijklmnopqrstuvwxyzabcdef\n"
                                  "                    22  p\n");
}

TEST(RecordList, HidesNothingHoweverNarrowTheTerminalIs)
{
    std::vector<RecordColumn> columns;
    std::vector<RecordValue> values;
    static const char* const names[] = {"a", "b", "c", "d", "e", "f"};
    for (const char* const name : names) {
        columns.push_back({name, name});
        values.push_back(Text(std::u16string(100, static_cast<char16_t>(*name))));
    }
    const RecordTable table = ListOf(columns, {values, values});
    for (const int width : {1, 2, 10, 40, 80, 120, 600, 610, 700}) {
        const std::string written = Table(table, {width});
        for (const char* const name : names) {
            const std::size_t first = written.find(std::string(100, *name));
            ASSERT_NE(first, std::string::npos) << width;
            EXPECT_NE(written.find(std::string(100, *name), first + 1), std::string::npos) << width;
        }
    }
}

TEST(RecordList, KeepsItsRowsWithinTheTerminalWhereValuesFitInIt)
{
    const RecordTable table =
        ListOf({{"a", "A"}, {"b", "B"}, {"c", "C"}},
               {{Text(u"0123456789"), Text(u"01234567890123456789"), Text(u"0123456789012345678901234")},
                {Text(u"0"), Text(u"1"), Text(u"2")}});
    for (const int width : {40, 45, 50, 58, 59, 60}) {
        const std::string written = Table(table, {width});
        std::size_t begin = 0;
        for (std::size_t end = written.find('\n'); end != std::string::npos; end = written.find('\n', begin)) {
            EXPECT_LE(end - begin, static_cast<std::size_t>(width)) << written;
            begin = end + 1;
        }
    }
}

TEST(RecordList, GivesEachValueALineWhereColumnsWouldBeTooNarrow)
{
    const RecordTable table =
        ListOf({{"a", "A"}, {"b", "B"}, {"c", "C"}}, {{Text(u"0123456789"), Text(u"0123456789"), Text(u"0123456789")},
                                                      {Text(u"0"), RecordValue(), Text(u"2")}});
    EXPECT_EQ(Table(table, {20}), "0123456789\n    B: 0123456789\n    C: 0123456789\n\n0\n    C: 2\n");
}

TEST(RecordList, ColoursHeadingsAndImportantRows)
{
    RecordTable table = ListOf({{"a", "A"}}, {{Text(u"x")}, {Text(u"y")}});
    table.toneOf = [](std::size_t row) {
        return row == 1 ? Tone::Bad : Tone::Plain;
    };
    EXPECT_EQ(Table(table, {80, true}), "\x1b[1mA\x1b[0m\nx\n\x1b[31my\x1b[0m\n");
}

TEST(RecordList, EscapesControlCharacters)
{
    const RecordTable table = ListOf({{"a", "A"}}, {{Text(u"x\x1b[2J\ny")}});
    EXPECT_EQ(Table(table, {80}), "A\nx\\x1b[2J\\ny\n");
}

TEST(RecordCsv, QuotesFieldsWhereNecessary)
{
    const RecordTable table = ListOf({{"name", "Name"}, {"note", "Note"}},
                                     {{Text(u"a,b"), Text(u"say \"x\"")}, {Text(u"line\nline"), Text(u" plain; é ")}});
    EXPECT_EQ(Csv(table), "\xEF\xBB\xBFname,note\n"
                          "\"a,b\",\"say \"\"x\"\"\"\n"
                          "\"line\nline\", plain; \xC3\xA9 \n");
}

TEST(RecordCsv, HasSizesInBytesAndNamesAsBytes)
{
    EXPECT_EQ(Csv(Programs()), "\xEF\xBB\xBFname,size,place\n"
                               "Editor,2048,C:\\Editor\nx,,C:\\x\nBig,5242880,\n");
    // A byte of a name that is not UTF-8.
    EXPECT_EQ(Csv(ListOf({{"name", "Name"}}, {{Text(u"a\xDCFF")}})), "\xEF\xBB\xBFname\na\xFF\n");
}

TEST(RecordJson, HasNumbersFlagsAndDatesAndNoKeyWithoutAValue)
{
    const RecordTable table = ListOf(
        {{"name", "Name"},
         {"fileSize", "Size", RecordKind::Size},
         {"isOld", "Old", RecordKind::Flag},
         {"day", "Day", RecordKind::Date}},
        {{Text(u"a\"b\xDCFF"), std::int64_t{2048}, true, RecordDate{COleDateTime(2024, 1, 5, 10, 30, 0), true, {}}},
         {RecordValue(), RecordValue(), false, RecordValue()},
         {Text(u""), std::int64_t{-1}, RecordValue(), RecordValue()}});
    EXPECT_EQ(Json(table),
              "{\"name\":\"a\\\"b\\udcff\",\"fileSize\":2048,\"isOld\":true,\"day\":\"2024-01-05T10:30:00\"}\n"
              "{\"isOld\":false}\n"
              "{\"name\":\"\",\"fileSize\":-1}\n");
}
