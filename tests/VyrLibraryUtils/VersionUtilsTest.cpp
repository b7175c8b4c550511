// The version of the running program: the build gives this test program its own.
#include <VyrLibraryUtils/VersionUtils.h>

#include <tests/support/Describe.h>

#include <gtest/gtest.h>

using VyrLibraryUtils::VersionUtils;

namespace {

TEST(VersionUtils, ReadsTheProgramsOwnNumbersInOrder)
{
    EXPECT_EQ(VersionUtils::GetFileMajorVersion(), 7);
    EXPECT_EQ(VersionUtils::GetFileMinorVersion(), 0);
    EXPECT_EQ(VersionUtils::GetFileRevisionVersion(), 65535);
    EXPECT_EQ(VersionUtils::GetFileBuildVersion(), 12);
}

TEST(VersionUtils, ReadsTheProgramsOwnTexts)
{
    EXPECT_EQ(VersionUtils::GetProductName(), CString(u"Companion t\u00E9sts"));
    EXPECT_EQ(VersionUtils::GetStringProductVersion(), CString(u"7.0 preview"));
}

} // namespace
