// Tests of the table of old and new names.
#include <VyrHost/ui/Table.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace VyrHost::Ui;

namespace {

/// The rows as a table; OutputBuffer writes only to the standard output.
std::string Table(const std::vector<TableRow>& rows, TableStyle style)
{
    testing::internal::CaptureStdout();
    {
        OutputBuffer output;
        WriteTable(
            output, rows.size(), [&rows](std::size_t index) { return rows[index]; }, style);
    }
    return testing::internal::GetCapturedStdout();
}

TableRow Row(std::u16string_view from, std::u16string_view to, const CString& note = {})
{
    return {{{}, from}, {{}, to}, note};
}

} // namespace

TEST(Table, AlignsColumns)
{
    EXPECT_EQ(Table({Row(u"a", u"bcd", u"note"), Row(u"longer", u"x"), Row(u"y", u"", u"refused")}, {80}),
              "a       ->  bcd  note\nlonger  ->  x\ny                refused\n");
}

TEST(Table, WritesARowThatDoesNotFitInSeveralLines)
{
    EXPECT_EQ(Table({Row(u"0123456789012345", u"abcdefghijklmnop", u"a remark")}, {30}),
              "0123456789012345\n  ->  abcdefghijklmnop\n      a remark\n");
    EXPECT_EQ(Table({Row(u"01234567890123456789", u"", u"refused: a remark")}, {30}),
              "01234567890123456789\n      refused: a remark\n");
}

TEST(Table, HidesNothingHoweverNarrowTheTerminalIs)
{
    const CString from(u'f', 300);
    const CString to(u't', 300);
    const CString note(u'n', 300);
    for (const int width : {1, 2, 10, 80, 300, 600, 909, 914, 1000}) {
        const std::string table = Table({Row(from, to, note), Row(u"a", u"b", u"c")}, {width});
        for (const char letter : {'f', 't', 'n'})
            EXPECT_NE(table.find(std::string(300, letter)), std::string::npos) << width;
        EXPECT_EQ(table.find("\xE2\x80\xA6"), std::string::npos) << width;
    }
}

TEST(Table, KeepsARowInOneLineWhereThatFits)
{
    // The first row makes the columns wide; the others fit beside or without it.
    const std::vector<TableRow> rows = {Row(u"0123456789", u"abcdefghij"), Row(u"a", u"b", u"c"),
                                        Row(u"01234567890123", u"a")};
    for (const int width : {21, 24, 26}) {
        const std::string table = Table(rows, {width});
        std::size_t begin = 0;
        for (std::size_t end = table.find('\n'); end != std::string::npos; end = table.find('\n', begin)) {
            EXPECT_LE(end - begin, static_cast<std::size_t>(width)) << table;
            begin = end + 1;
        }
        EXPECT_NE(table.find("01234567890123  ->  a\n"), std::string::npos) << table;
    }
}

TEST(Table, ColoursEveryLineOfARow)
{
    TableRow row = Row(u"0123456789012345", u"abcdefghijklmnop", u"a remark");
    row.tone = Tone::Bad;
    EXPECT_EQ(Table({row}, {20, true}), "\x1b[31m0123456789012345\x1b[0m\n\x1b[31m  ->  abcdefghijklmnop\x1b[0m\n"
                                        "\x1b[31m      a remark\x1b[0m\n");
}
