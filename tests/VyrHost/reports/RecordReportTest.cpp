// Lists of records as pages.
#include <VyrHost/reports/RecordReport.h>

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

using namespace VyrHost::Reports;
using namespace VyrHost::Ui;
using testing::HasSubstr;
using testing::Not;

namespace {

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

std::string Page(const RecordTable& table, const ReportText& text = {u"Title", u"1 row."}, const Design& design = {})
{
    std::string page;
    WriteRecordReport([&](std::string_view piece) { page += piece; }, table, text, design);
    return page;
}

/// The part of the page between two texts.
std::string Between(const std::string& page, const std::string& start, const std::string& end)
{
    const std::size_t from = page.find(start);
    const std::size_t to = page.find(end, from);
    return from == std::string::npos || to == std::string::npos
               ? std::string()
               : page.substr(from + start.size(), to - from - start.size());
}

int Count(const std::string& page, const std::string& text)
{
    int count = 0;
    for (std::size_t at = 0; (at = page.find(text, at)) != std::string::npos; at += text.size())
        ++count;
    return count;
}

} // namespace

TEST(RecordReport, PageHasARowForEachRecord)
{
    const std::string page = Page(ListOf({{"name", "Name"}, {"size", "Size", RecordKind::Size}},
                                         {{Text(u"a"), std::int64_t{2048}}, {Text(u"b"), RecordValue()}}));
    EXPECT_TRUE(
        page.starts_with("<!DOCTYPE html>\r\n\r\n<html lang=\"en\">\r\n<head>\r\n\t<meta charset=\"utf-8\">\r\n"));
    EXPECT_TRUE(page.ends_with("})();\n</script>\r\n</body>\r\n</html>\r\n"));
    EXPECT_EQ(Between(page, "<thead>\r\n", "</thead>"),
              "<tr><th class=\"text\">Name</th><th class=\"size\">Size</th></tr>");
    EXPECT_EQ(Between(page, "<tbody>\r\n", "</tbody>"),
              "<tr><td class=\"text\">a</td><td id=\"r0c1\" class=\"size\" data-value=\"2048\">2.00 KB</td></tr>\r\n"
              "<tr><td class=\"text\">b</td><td class=\"size\"></td></tr>\r\n");
    EXPECT_EQ(Between(page, "<title>", "</title>"), "Title");
    EXPECT_EQ(Between(page, "<p class=\"total\">", "</p>"), "1 row.");
}

TEST(RecordReport, HostileTextsRunNothing)
{
    const CString hostile = u"</td></style><script>alert(1)</script>\" onload=\"x()%s";
    const std::string page = Page(ListOf({{"name", "Name"}}, {{hostile}}), {hostile, hostile});
    EXPECT_EQ(Count(page, "<script"), 1) << "the page's own";
    EXPECT_EQ(Count(page, "</style"), 1);
    EXPECT_EQ(Count(page, "onload=\""), 0);
    EXPECT_EQ(Count(page, "&lt;script&gt;alert(1)&lt;/script&gt;&quot; onload=&quot;x()%s"), 4);
}

TEST(RecordReport, AddressesAreLinksAndUnsafeOnesAreText)
{
    const std::string page = Page(
        ListOf({{"url", "Address"}}, {{Text(u"https://example.org/%s?a=1&b=\"")}, {Text(u"javascript:alert(1)")}}));
    EXPECT_THAT(page, HasSubstr("<td class=\"text\"><a href=\"https://example.org/%s?a=1&amp;b=%22\">"
                                "https://example.org/%s?a=1&amp;b=&quot;</a></td>"));
    EXPECT_THAT(page, HasSubstr("<td class=\"text\">javascript:alert(1)</td>"));
}

TEST(RecordReport, PageLoadsNothingFromOutside)
{
    const std::string page = Page(ListOf({{"name", "Name"}}, {{Text(u"a")}}));
    for (const char* const reference : {"src=", "href=", "url(", "@import", "http://", "https://"})
        EXPECT_THAT(page, Not(HasSubstr(reference)));
}

TEST(RecordReport, ShownColumnsAndRowsKeepTheirOrder)
{
    RecordTable table = ListOf({{"a", "A"}, {"b", "B"}}, {{Text(u"1"), Text(u"2")}, {Text(u"3"), Text(u"4")}});
    table.shown = {1};
    table.rows = {1, 0};
    const std::string page = Page(table);
    EXPECT_EQ(Between(page, "<tbody>\r\n", "</tbody>"),
              "<tr><td class=\"text\">4</td></tr>\r\n<tr><td class=\"text\">2</td></tr>\r\n");
}

TEST(RecordReport, TonesAreClassesOfRows)
{
    RecordTable table = ListOf({{"a", "A"}}, {{Text(u"1")}, {Text(u"2")}, {Text(u"3")}, {Text(u"4")}});
    table.toneOf = [](std::size_t row) {
        return static_cast<Tone>(row);
    };
    const std::string page = Page(table);
    EXPECT_THAT(page, HasSubstr("<tr><td class=\"text\">1"));
    EXPECT_THAT(page, HasSubstr("<tr class=\"faint\"><td class=\"text\">2"));
    EXPECT_THAT(page, HasSubstr("<tr class=\"notable\"><td class=\"text\">3"));
    EXPECT_THAT(page, HasSubstr("<tr class=\"bad\"><td class=\"text\">4"));
}

TEST(RecordReport, StyleOfTheDesignFollowsTheDefaultOne)
{
    const std::string page = Page(ListOf({{"a", "A"}}, {}), {}, {u"mine", u"td { color: #123456 }"});
    EXPECT_TRUE(Between(page, "<style>", "</style>").ends_with("td { color: #123456 }\t"));
}

TEST(RecordReport, PicturesStandInAColumnOfTheirOwn)
{
    const RecordTable table = ListOf({{"name", "Name"}}, {{Text(u"a")}, {Text(u"b")}, {Text(u"c")}});
    std::string page;
    WriteRecordReport([&](std::string_view piece) { page += piece; }, table, {}, {},
                      [](std::size_t row) -> std::optional<Thumbnail> {
                          if (row == 1)
                              return std::nullopt;
                          return Thumbnail{"./%s.jpg", {160, 120}, row == 0 ? 1 : 6};
                      });
    EXPECT_EQ(Between(page, "<thead>\r\n", "</thead>"),
              "<tr><th class=\"picture\">Picture</th><th class=\"text\">Name</th></tr>");
    EXPECT_EQ(Between(page, "<tbody>\r\n", "</tbody>"),
              "<tr><td class=\"picture\"><img src=\"./%s.jpg\" class=\"thumbnail\" width=\"160\" height=\"120\" "
              "alt=\"\"></td>"
              "<td class=\"text\">a</td></tr>\r\n"
              "<tr><td class=\"picture\"></td><td class=\"text\">b</td></tr>\r\n"
              "<tr><td class=\"picture\"><img src=\"./%s.jpg\" class=\"thumbnail turned turned6\" width=\"160\" "
              "height=\"120\" alt=\"\"></td><td class=\"text\">c</td></tr>\r\n");
    EXPECT_THAT(page, HasSubstr(".records td:nth-child(2) { --label: \"Name\"; }"));
}

TEST(RecordReport, LongListIsWrittenInPieces)
{
    RecordTable table = ListOf({{"a", "A"}}, {{Text(u"row")}});
    table.rows.assign(100000, 0);
    std::size_t largest = 0;
    std::size_t total = 0;
    WriteRecordReport(
        [&](std::string_view piece) {
            largest = std::max(largest, piece.size());
            total += piece.size();
        },
        table, {}, {});
    EXPECT_LT(largest, 100000U);
    EXPECT_GT(total, 2000000U);
}
