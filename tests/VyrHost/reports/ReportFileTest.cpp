// The file of a report exists only when it is complete.
#include <VyrHost/reports/ReportFile.h>

#include <VyrHost/text/Errors.h>

#include <VyrPlatform/text/Encoding.h>
#include <tests/support/Links.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>

using namespace VyrHost::Reports;
using VyrHost::Text::UsageError;

namespace {

void WriteTwoPieces(const TakePiece& take)
{
    take("one ");
    take("two");
}

/// How many entries the folder has, temporary files among them.
std::ptrdiff_t EntriesIn(const VyrTests::ScratchFolder& folder)
{
    const std::filesystem::directory_iterator entries(VyrTests::ToStdPath(folder.Path()));
    return std::distance(entries, std::filesystem::directory_iterator());
}

} // namespace

TEST(ReportFile, IsWrittenWhole)
{
    const VyrTests::ScratchFolder folder;
    EXPECT_EQ(WriteReportFile(folder.Path(u"a.html"), false, WriteTwoPieces), 0U);
    EXPECT_EQ(folder.ReadFile(u"a.html"), "one two");
    EXPECT_EQ(EntriesIn(folder), 1);
}

TEST(ReportFile, ExistingFileIsReplacedOnlyOnRequest)
{
    const VyrTests::ScratchFolder folder;
    const CString path = folder.WriteFile(u"a.html", "former");
    EXPECT_THROW(CheckReportFile(path, false), UsageError);
    EXPECT_NE(WriteReportFile(path, false, WriteTwoPieces), 0U);
    EXPECT_EQ(folder.ReadFile(u"a.html"), "former");
    EXPECT_EQ(EntriesIn(folder), 1);
    CheckReportFile(path, true);
    EXPECT_EQ(WriteReportFile(path, true, WriteTwoPieces), 0U);
    EXPECT_EQ(folder.ReadFile(u"a.html"), "one two");
    EXPECT_EQ(EntriesIn(folder), 1);
}

TEST(ReportFile, LeftoversOfKilledProgramsDoNotMatter)
{
    const VyrTests::ScratchFolder folder;
    const CString path = folder.WriteFile(u"a.html", "former");
    folder.WriteFile(u"a.html.part");
    folder.MakeFolder(u"a.html.former");
    EXPECT_EQ(WriteReportFile(path, true, WriteTwoPieces), 0U);
    EXPECT_EQ(folder.ReadFile(u"a.html"), "one two");
    EXPECT_EQ(EntriesIn(folder), 3);
}

TEST(ReportFile, FileThatCannotGetItsNameIsRemoved)
{
    const VyrTests::ScratchFolder folder;
    EXPECT_NE(WriteReportFile(folder.Path(CString(u'x', 300)), false, WriteTwoPieces), 0U);
    EXPECT_NE(WriteReportFile(folder.MakeFolder(u"a.html"), true, WriteTwoPieces), 0U);
    EXPECT_EQ(EntriesIn(folder), 1);
}

TEST(ReportFile, FolderAndMissingFolderAreRefused)
{
    const VyrTests::ScratchFolder folder;
    EXPECT_THROW(CheckReportFile(folder.MakeFolder(u"a.html"), true), UsageError);
    EXPECT_THROW(CheckReportFile(folder.Path(u"missing/a.html"), true), UsageError);
    EXPECT_NE(WriteReportFile(folder.Path(u"missing/a.html"), false, WriteTwoPieces), 0U);
    folder.WriteFile(u"file");
    EXPECT_THROW(CheckReportFile(folder.Path(u"file/a.html"), true), UsageError);
    CheckReportFile(folder.Path(u"b.html"), false);
}

TEST(ReportFile, PathWithoutANameIsRefused)
{
    const VyrTests::ScratchFolder folder;
    for (const char16_t* const end : {u"/", u"/.", u"/.."})
        EXPECT_THROW(CheckReportFile(folder.Path() + u"/missing" + end, true), UsageError)
            << VyrPlatform::Encoding::ToUtf8(end);
    EXPECT_THROW(CheckReportFile(u"", true), UsageError);
    EXPECT_THROW(CheckReportFile(u"-", true), UsageError) << "it is no file for other programs";
}

TEST(ReportFile, LinkStaysAndItsTargetIsReplaced)
{
    const VyrTests::ScratchFolder folder;
    const CString target = folder.WriteFile(u"target", "former");
    const CString link = folder.Path(u"a.html");
    if (const std::string why = VyrTests::MakeLink(target, link); !why.empty())
        GTEST_SKIP() << why;
    EXPECT_THROW(CheckReportFile(link, false), UsageError);
    CheckReportFile(link, true);
    EXPECT_EQ(WriteReportFile(link, true, WriteTwoPieces), 0U);
    EXPECT_TRUE(std::filesystem::is_symlink(VyrTests::ToStdPath(link)));
    EXPECT_EQ(folder.ReadFile(u"target"), "one two");
    EXPECT_EQ(VyrTests::MakeLink(folder.Path(u"nothing"), folder.Path(u"dangling")), "");
    EXPECT_THROW(CheckReportFile(folder.Path(u"dangling"), true), UsageError);
}
