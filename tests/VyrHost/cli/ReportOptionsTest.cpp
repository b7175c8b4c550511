// Tests of the program: lists as pages for a browser.
#include "VyrProgram.h"

#include <tests/support/PictureBuilder.h>

#include <gmock/gmock.h>

using namespace VyrTests;
using testing::HasSubstr;

namespace {

class Reports : public VyrProgram
{
protected:
    Reports()
    {
        WriteNamed({u"a&b"});
        EXPECT_EQ(Rename({u"--prefix", u"&lt;", u"--apply", u"a&b"}).exitCode, 0);
    }
    [[nodiscard]] ProgramResult List(std::vector<CString> more) const
    {
        std::vector<CString> arguments = {u"undo", u"--list"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return Run(arguments);
    }
};

} // namespace

TEST_F(Reports, ListBecomesAPage)
{
    const ProgramResult result = List({u"--html", u"list.html"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.output, "1 batch.\n");
    const std::string page = m_folder.ReadFile(u"list.html");
    EXPECT_THAT(page, testing::StartsWith("<!DOCTYPE html>"));
    EXPECT_THAT(page, HasSubstr("<title>Batches</title>"));
    EXPECT_THAT(page, HasSubstr("tbody tr:nth-child(even of ")) << "the plain design";
}

TEST_F(Reports, PageIsReplacedOnlyWithOverwrite)
{
    m_folder.WriteFile(u"list.html", "former");
    const ProgramResult refused = List({u"--html", u"list.html"});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_THAT(refused.errors, HasSubstr("--overwrite"));
    EXPECT_EQ(m_folder.ReadFile(u"list.html"), "former");
    EXPECT_EQ(List({u"--html", u"list.html", u"--overwrite"}).exitCode, 0);
    EXPECT_THAT(m_folder.ReadFile(u"list.html"), testing::StartsWith("<!DOCTYPE html>"));
}

TEST_F(Reports, PreviewAndRecordOfARenameBecomePages)
{
    const ProgramResult preview = Rename({u"--prefix", u"x", u"--html", u"preview.html", u"&lt;a&b"});
    EXPECT_EQ(preview.exitCode, 0) << preview.errors;
    EXPECT_THAT(preview.output, HasSubstr("x&lt;a&b")) << "the table stays";
    EXPECT_THAT(m_folder.ReadFile(u"preview.html"), HasSubstr("x&amp;lt;a&amp;b"));
    EXPECT_EQ(m_folder.ReadFile(u"&lt;a&b"), "a&b");
    const ProgramResult record = Rename({u"--prefix", u"x", u"--apply", u"--html", u"record.html", u"&lt;a&b"});
    EXPECT_EQ(record.exitCode, 0) << record.errors;
    EXPECT_THAT(m_folder.ReadFile(u"record.html"), HasSubstr("x&amp;lt;a&amp;b"));
    EXPECT_EQ(m_folder.ReadFile(u"x&lt;a&b"), "a&b");
}

TEST_F(Reports, DesignsAreChosenByNameAndFile)
{
    EXPECT_EQ(List({u"--html", u"1.html", u"--design", u"cards"}).exitCode, 0);
    EXPECT_THAT(m_folder.ReadFile(u"1.html"), HasSubstr("display: grid"));
    EXPECT_EQ(List({u"--html", u"2.html", u"--design", u"none"}).exitCode, 2);
    m_folder.WriteFile(u"own.xml", "<d><design><moreinfo><item name='mine' value='td { color: #123456 }'/></moreinfo>"
                                   "</design></d>");
    EXPECT_EQ(List({u"--html", u"3.html", u"--designs", u"own.xml", u"--design", u"mine"}).exitCode, 0);
    EXPECT_THAT(m_folder.ReadFile(u"3.html"), HasSubstr("#123456"));
    EXPECT_EQ(List({u"--html", u"4.html", u"--designs", u"missing.xml"}).exitCode, 2);
    EXPECT_FALSE(m_folder.Has(u"2.html"));
    EXPECT_FALSE(m_folder.Has(u"4.html"));
}

TEST_F(Reports, OptionsThatDoNotGoTogetherAreRefused)
{
    EXPECT_EQ(List({u"--html", u"a.html", u"--csv"}).exitCode, 2);
    EXPECT_EQ(List({u"--html", u"a.html", u"--json"}).exitCode, 2);
    EXPECT_EQ(List({u"--design", u"cards"}).exitCode, 2);
    EXPECT_EQ(List({u"--overwrite"}).exitCode, 2);
    EXPECT_EQ(Run({u"undo", u"--html", u"a.html"}).exitCode, 2) << "without --list";
}

TEST_F(Reports, ThumbnailsAreThoseOfThePictures)
{
    m_folder.WriteFile(u"p.jpg", BuildJpeg("", 64));
    const ProgramResult result = Run({u"list", u"p.jpg", u"--html", u"list.html", u"--thumbnails"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(m_folder.ReadFile(u"list.html"),
                HasSubstr("<img src=\"./p.jpg\" class=\"thumbnail\" width=\"2048\" height=\"8\" alt=\"\">"));
    EXPECT_EQ(Run({u"list", u"p.jpg", u"--thumbnails"}).exitCode, 2) << "without --html";
    EXPECT_EQ(List({u"--html", u"a.html", u"--thumbnails"}).exitCode, 2) << "batches are no files";
}

TEST_F(Reports, PageThatCannotBeWrittenIsAnErrorOfTheOutput)
{
    const ProgramResult result = List({u"--html", CString(u'x', 300)});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.errors, HasSubstr("cannot be written"));
}

TEST_F(Reports, PathThatCannotBecomeAPageIsRefusedBeforeAnythingIsDone)
{
    m_folder.MakeFolder(u"folder");
    for (const char16_t* const path : {u"missing/a.html", u"missing/", u"folder"}) {
        const ProgramResult result = Rename({u"--prefix", u"x", u"--apply", u"&lt;a&b", u"--html", path});
        EXPECT_EQ(result.exitCode, 2) << result.errors;
        EXPECT_THAT(result.errors, HasSubstr("--html"));
        EXPECT_TRUE(m_folder.Has(u"&lt;a&b"));
        EXPECT_FALSE(m_folder.Has(u"missing"));
    }
}
