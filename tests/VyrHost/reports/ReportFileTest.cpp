// The file of a report exists only when it is complete.
#include <VyrHost/reports/ReportFile.h>

#include <VyrHost/text/Errors.h>

#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace VyrHost::Reports;
using VyrHost::Text::UsageError;

namespace {

void WriteTwoPieces(const TakePiece& take)
{
    take("one ");
    take("two");
}

} // namespace

TEST(ReportFile, IsWrittenWhole)
{
    const VyrTests::ScratchFolder folder;
    EXPECT_EQ(WriteReportFile(folder.Path(u"a.html"), false, WriteTwoPieces), 0U);
    EXPECT_EQ(folder.ReadFile(u"a.html"), "one two");
    EXPECT_FALSE(folder.Has(u"a.html.part"));
}

TEST(ReportFile, ExistingFileIsReplacedOnlyOnRequest)
{
    const VyrTests::ScratchFolder folder;
    const CString path = folder.WriteFile(u"a.html", "former");
    EXPECT_THROW(CheckReportFile(path, false), UsageError);
    EXPECT_NE(WriteReportFile(path, false, WriteTwoPieces), 0U);
    EXPECT_EQ(folder.ReadFile(u"a.html"), "former");
    EXPECT_FALSE(folder.Has(u"a.html.part"));
    CheckReportFile(path, true);
    EXPECT_EQ(WriteReportFile(path, true, WriteTwoPieces), 0U);
    EXPECT_EQ(folder.ReadFile(u"a.html"), "one two");
    EXPECT_FALSE(folder.Has(u"a.html.former"));
}

TEST(ReportFile, ExistingFileStaysWhereTheNewOneCannotBeWritten)
{
    const VyrTests::ScratchFolder folder;
    const CString path = folder.WriteFile(u"a.html", "former");
    folder.MakeFolder(u"a.html.former");
    EXPECT_NE(WriteReportFile(path, true, WriteTwoPieces), 0U);
    EXPECT_EQ(folder.ReadFile(u"a.html"), "former");
    EXPECT_FALSE(folder.Has(u"a.html.part"));
    const VyrTests::ScratchFolder other;
    const CString second = other.WriteFile(u"b.html", "former");
    other.MakeFolder(u"b.html.part");
    EXPECT_NE(WriteReportFile(second, true, WriteTwoPieces), 0U);
    EXPECT_EQ(other.ReadFile(u"b.html"), "former");
}

TEST(ReportFile, FolderAndMissingFolderAreRefused)
{
    const VyrTests::ScratchFolder folder;
    EXPECT_THROW(CheckReportFile(folder.MakeFolder(u"a.html"), true), UsageError);
    EXPECT_NE(WriteReportFile(folder.Path(u"missing/a.html"), false, WriteTwoPieces), 0U);
}
