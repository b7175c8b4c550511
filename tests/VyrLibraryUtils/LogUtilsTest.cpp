#include <VyrLibraryUtils/LogUtils.h>
#include <VyrPlatform/files/FileReader.h>

#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

using VyrLibraryUtils::LogUtils;

namespace {

TEST(LogUtils, GivesTheSystemsMessageInOneLine)
{
    const VyrTests::ScratchFolder scratch;
    const VyrPlatform::FileReader missing(scratch.Path(u"missing"));
    ASSERT_NE(missing.Error(), 0U);
    const CString message = LogUtils::GetLastErrorMessage(missing.Error());
    EXPECT_GT(message.GetLength(), 5);
    EXPECT_EQ(message.View().find_first_of(u"\r\n"), message.View().npos);
}

TEST(LogUtils, DistinguishesErrors)
{
    // Not found and access denied under Windows, not permitted and no such process under Linux.
    EXPECT_NE(LogUtils::GetLastErrorMessage(2), LogUtils::GetLastErrorMessage(5));
}

TEST(LogUtils, GivesNothingForAnUnknownCode)
{
    EXPECT_EQ(LogUtils::GetLastErrorMessage(0x2FFFFFFF), u"");
    EXPECT_EQ(LogUtils::GetLastErrorMessage(0xFFFFFFFF), u"");
}

} // namespace
