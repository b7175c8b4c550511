// What a page replaces on Linux, and with which permissions.
#include <VyrHost/reports/ReportFile.h>

#include <VyrHost/text/Errors.h>

#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace VyrHost::Reports;
using VyrTests::ToStdPath;

namespace {

struct stat StatusOf(const CString& path)
{
    struct stat status
    {};
    EXPECT_EQ(stat(ToStdPath(path).c_str(), &status), 0);
    return status;
}

} // namespace

TEST(ReportFileLinux, PipesAndDevicesAreRefused)
{
    const VyrTests::ScratchFolder folder;
    const CString pipe = folder.Path(u"pipe");
    ASSERT_EQ(mkfifo(ToStdPath(pipe).c_str(), 0600), 0);
    for (const CString& path : {pipe, CString(u"/dev/null"), CString(u"/dev/stdin/a.html")})
        EXPECT_THROW(CheckReportFile(path, true), VyrHost::Text::UsageError);
    EXPECT_NE(WriteReportFile(pipe, true, [](const TakePiece& take) { take("new"); }), 0U);
    EXPECT_TRUE(S_ISFIFO(StatusOf(pipe).st_mode));
}

TEST(ReportFileLinux, ReplacedPageKeepsItsPermissions)
{
    const VyrTests::ScratchFolder folder;
    const CString path = folder.WriteFile(u"a.html", "former");
    for (const mode_t mode : {0600U, 0640U, 0666U}) {
        ASSERT_EQ(chmod(ToStdPath(path).c_str(), mode), 0);
        const mode_t mask = umask(022);
        EXPECT_EQ(WriteReportFile(path, true, [](const TakePiece& take) { take("new"); }), 0U);
        umask(mask);
        EXPECT_EQ(StatusOf(path).st_mode & 07777, mode);
        EXPECT_EQ(folder.ReadFile(u"a.html"), "new");
    }
}
