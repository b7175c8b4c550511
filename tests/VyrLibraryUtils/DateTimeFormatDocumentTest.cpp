// Every table row of docs/date-time-formats.md, compared with the library.
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/text/Encoding.h>

#include <tests/support/Describe.h>
#include <tests/support/UserLocale.h>

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

using VyrLibraryUtils::DateTimeUtils;
using VyrPlatform::Encoding::FromUtf8;
using VyrPlatform::Encoding::ToUtf8;

namespace {

using Row = std::vector<std::string>;

std::string WithoutDecoration(std::string cell)
{
    cell.erase(0, cell.find_first_not_of(' '));
    cell.erase(cell.find_last_not_of(' ') + 1);
    const bool isCode = cell.size() >= 2 && cell.front() == '`' && cell.back() == '`';
    return isCode ? cell.substr(1, cell.size() - 2) : cell;
}

Row CellsOf(const std::string& line)
{
    Row cells;
    for (std::size_t start = 1; start < line.size();) {
        const std::size_t end = line.find('|', start);
        if (end == line.npos)
            break;
        cells.push_back(WithoutDecoration(line.substr(start, end - start)));
        start = end + 1;
    }
    return cells;
}

/// The rows of the document's table with the header `header`, without the header itself.
std::vector<Row> RowsUnder(const std::string& header)
{
    std::ifstream document(VYR_SOURCE_FOLDER "/docs/date-time-formats.md");
    EXPECT_TRUE(document.is_open());
    std::vector<Row> rows;
    bool isInTable = false;
    for (std::string line; std::getline(document, line);) {
        if (isInTable && !line.starts_with('|'))
            break;
        if (isInTable && !line.starts_with("|---"))
            rows.push_back(CellsOf(line));
        isInTable = isInTable || line == header;
    }
    return rows;
}

/// The moment that the document's examples speak of.
const COleDateTime sample(2024, 3, 15, 13, 5, 9);

TEST(DateTimeFormatDocument, ListsEachRunWithItsConversion)
{
    const std::vector<Row> rows = RowsUnder("| letters | part of the date-time | conversion |");
    EXPECT_EQ(rows.size(), 19U);
    for (const Row& row : rows) {
        ASSERT_EQ(row.size(), 3U);
        EXPECT_EQ(ToUtf8(DateTimeUtils::GetDateTimeFormat(FromUtf8(row[0]), u"")), row[2]);
    }
}

TEST(DateTimeFormatDocument, ShowsFormatsAsTheyAreWritten)
{
    const VyrTests::UserLocale locale(u"en_US");
    const std::vector<Row> rows = RowsUnder("| format | pattern | text |");
    EXPECT_GE(rows.size(), 15U);
    for (const Row& row : rows) {
        ASSERT_EQ(row.size(), 3U);
        const CString pattern = DateTimeUtils::GetDateTimeFormat(FromUtf8(row[0]), u"");
        EXPECT_EQ(ToUtf8(pattern), row[1]);
        EXPECT_EQ(ToUtf8(DateTimeUtils::GetOleDateTimeFormat(sample, pattern)), row[2]);
    }
}

TEST(DateTimeFormatDocument, ShowsTextsAsTheyAreRead)
{
    const VyrTests::UserLocale locale(u"en_US");
    const std::vector<Row> rows = RowsUnder("| text | date-time |");
    EXPECT_GE(rows.size(), 10U);
    for (const Row& row : rows) {
        ASSERT_EQ(row.size(), 2U);
        const COleDateTime read = DateTimeUtils::GetParseDateTime(FromUtf8(row[0]), 1, 0, 1024);
        const CString text = DateTimeUtils::GetOleDateTimeFormat(read, u"%Y/%m/%d %H:%M:%S");
        EXPECT_EQ(text.IsEmpty() ? "none" : ToUtf8(text), row[1]) << row[0];
    }
}

} // namespace
