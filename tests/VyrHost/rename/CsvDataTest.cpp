// Tables with values for files.
#include <VyrHost/rename/CsvData.h>

#include <VyrHost/text/Errors.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FullPath.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tests/support/Describe.h>

using namespace VyrHost::Rename;
using testing::HasSubstr;
using VyrHost::Text::UsageError;

namespace {

std::string ErrorOf(std::string_view bytes)
{
    try {
        const CsvData data(bytes);
    } catch (const UsageError& error) {
        return error.what();
    }
    return {};
}

} // namespace

TEST(CsvData, FindsTheFieldOfAFileByItsName)
{
    const CsvData data("\xEF\xBB\xBF"
                       "file,title,\"the year\"\r\na.jpg,\"One, \"\"two\"\"\",2024\r\n\r\nb.jpg,,2025\r\n");
    EXPECT_EQ(data.FindColumn(u"title"), 1u);
    EXPECT_EQ(data.FindColumn(u"the year"), 2u);
    EXPECT_EQ(data.FindColumn(u"3"), 2u);
    EXPECT_EQ(data.FindColumn(u"4"), std::nullopt);
    EXPECT_EQ(data.FindColumn(u"Title"), std::nullopt);
    EXPECT_EQ(data.Find(u"/x/a.jpg", 1), u"One, \"two\"");
    EXPECT_EQ(data.Find(u"/x/b.jpg", 2), u"2025");
    EXPECT_EQ(data.Find(u"/x/b.jpg", 1), u"");
    EXPECT_EQ(data.Find(u"/x/c.jpg", 1), u"");
}

TEST(CsvData, FindsTheFieldOfAFileByItsPath)
{
    const CsvData data("file,title\nsub/a.jpg,in sub\na.jpg,elsewhere\n");
    EXPECT_EQ(data.Find(VyrPlatform::GetFullPath(u"sub/a.jpg"), 1), u"in sub");
    EXPECT_EQ(data.Find(VyrPlatform::GetFullPath(u"other/a.jpg"), 1), u"elsewhere");
}

TEST(CsvData, ComparesNamesInTheirComposedForms)
{
    const CsvData data("file,title\ne\xCC\x81.jpg,accent\n");
    EXPECT_EQ(data.Find(u"/x/\u00e9.jpg", 1), u"accent");
}

TEST(CsvData, HasSemicolonsOrTabsWhereTheFirstLineHasThem)
{
    EXPECT_EQ(CsvData("file;title;year\na;b, c;2024\n").Find(u"/a", 1), u"b, c");
    EXPECT_EQ(CsvData("file\ttitle\na\t\"b\"\n").Find(u"/a", 1), u"\"b\"");
}

TEST(CsvData, RefusesTablesThatMakeNoSense)
{
    EXPECT_THAT(ErrorOf(""), HasSubstr("empty"));
    EXPECT_THAT(ErrorOf("file,\na,b\n"), HasSubstr("line 1 of the CSV data: it names the columns"));
    EXPECT_THAT(ErrorOf("file,x,x\na,b,c\n"), HasSubstr("a name of its own"));
    EXPECT_THAT(ErrorOf("file,x\na\n"), HasSubstr("line 2 of the CSV data: it has 1 fields, the first line 2"));
    EXPECT_THAT(ErrorOf("file,x\n,b\n"), HasSubstr("the name of a file, is empty"));
    EXPECT_THAT(ErrorOf("file,x\na,b\n\na,c\n"), HasSubstr("line 4 of the CSV data: there is a line for that file"));
    EXPECT_THAT(ErrorOf("file,x\na,\"b\n"), HasSubstr("double quotes has no end"));
    EXPECT_THAT(ErrorOf(std::string_view("\xFF\xFE"
                                         "f\0",
                                         4)),
                HasSubstr("UTF-16"));
}
