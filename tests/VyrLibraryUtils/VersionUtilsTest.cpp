// The version of the running program: this test program carries none.
#include <VyrLibraryUtils/VersionUtils.h>

#include <tests/support/Describe.h>

#include <gtest/gtest.h>

using VyrLibraryUtils::VersionUtils;

namespace {

TEST(VersionUtils, ReadsZerosAndEmptyTextsInAProgramWithoutAVersion)
{
    EXPECT_EQ(VersionUtils::GetFileMajorVersion(), 0);
    EXPECT_EQ(VersionUtils::GetFileMinorVersion(), 0);
    EXPECT_EQ(VersionUtils::GetFileRevisionVersion(), 0);
    EXPECT_EQ(VersionUtils::GetFileBuildVersion(), 0);
    EXPECT_EQ(VersionUtils::GetProductName(), u"");
    EXPECT_EQ(VersionUtils::GetStringProductVersion(), u"");
}

} // namespace
