// The date-times of files as text, which is read back when they are written to a file.
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/FileListUtils.h>

#include <tests/support/Describe.h>
#include <tests/support/FileMoments.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/UserLocale.h>

#include <gtest/gtest.h>

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::FileListUtils;
using VyrTests::ScratchFolder;
using VyrTests::TicksOfUnixTime;
using VyrTests::UserLocale;

namespace {

COleDateTime Parsed(const CString& text)
{
    return DateTimeUtils::GetParseDateTime(text, 1, 0, 1024);
}

TEST(FileListUtils, WritesTheSameFormInEveryLocale)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a");
    VyrTests::StampFile(file, VyrTests::ToFileTicks({2024, 1, 2, 3, 4, 5}) + 9'999'999,
                        VyrTests::ToFileTicks({1980, 1, 1, 0, 0, 0}));
    for (const char16_t* const name : {u"C", u"de_DE", u"tr_TR", u"az", u"ja_JP", u"ar_EG"}) {
        const UserLocale locale(name);
        EXPECT_EQ(FileListUtils::GetLastWriteDateTime(file), u"2024/01/02 03:04:05");
        EXPECT_EQ(FileListUtils::GetLastAccessDateTime(file), u"1980/01/01 00:00:00");
    }
}

TEST(FileListUtils, IsWrittenBackAsTheSameInstant)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a");
    // Winters and summers, the first second of 1970, the last second of a leap day.
    for (const std::int64_t moment : {1'704'110'400, 1'719'835'200, 0, 951'868'799, 315'532'800, 489'024'000}) {
        VyrTests::StampFile(file, TicksOfUnixTime(moment, 9'999'999), TicksOfUnixTime(moment + 1));
        const COleDateTime written = Parsed(FileListUtils::GetLastWriteDateTime(file));
        const COleDateTime accessed = Parsed(FileListUtils::GetLastAccessDateTime(file));
        EXPECT_EQ(VyrTests::ToFileTicks(written), TicksOfUnixTime(moment)) << VyrTests::Describe(written);
        EXPECT_EQ(VyrTests::ToFileTicks(accessed), TicksOfUnixTime(moment + 1)) << VyrTests::Describe(accessed);
    }
}

TEST(FileListUtils, KnowsWhenAFileWasCreated)
{
    const ScratchFolder scratch;
    EXPECT_EQ(Parsed(FileListUtils::GetCreationDateTime(scratch.WriteFile(u"a"))).GetStatus(), COleDateTime::valid);
}

TEST(FileListUtils, CreationIsNotTheLastChange)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a");
    const VyrPlatform::FileTicks changed = TicksOfUnixTime(1'000'000'000);
    VyrTests::StampFile(file, changed, changed);
    if (VyrPlatform::FileTimes::GetCreated(file) == changed)
        GTEST_SKIP() << "this file system tells no creation time of its own";
    EXPECT_NE(FileListUtils::GetCreationDateTime(file), FileListUtils::GetLastWriteDateTime(file));
    EXPECT_GE(Parsed(FileListUtils::GetCreationDateTime(file)).GetYear(), 2024);
}

TEST(FileListUtils, GivesTheDateOfAPictureInTheSameForm)
{
    const ScratchFolder scratch;
    const VyrTests::PictureFacts facts{.dateTimeOriginal = "2024:07:19 18:45:03"};
    EXPECT_EQ(FileListUtils::GetExifDTOrig(scratch.WriteFile(u"a.jpg", VyrTests::BuildJpeg(facts))),
              u"2024/07/19 18:45:03");
}

TEST(FileListUtils, IsEmptyForAPictureWithoutAProperDate)
{
    const ScratchFolder scratch;
    for (const char* const date : {"", "0000:00:00 00:00:00", "    :  :     :  :  ", "2023:02:29 01:02:03"}) {
        const VyrTests::PictureFacts facts{.dateTimeOriginal = date};
        EXPECT_EQ(FileListUtils::GetExifDTOrig(scratch.WriteFile(u"a.jpg", VyrTests::BuildJpeg(facts))), u"") << date;
    }
    EXPECT_EQ(FileListUtils::GetExifDTOrig(scratch.WriteFile(u"a.txt", "no picture")), u"");
}

TEST(FileListUtils, IsEmptyForMissingFiles)
{
    const ScratchFolder scratch;
    for (const CString& path : {scratch.Path(u"missing"), CString()}) {
        EXPECT_EQ(FileListUtils::GetLastWriteDateTime(path), u"");
        EXPECT_EQ(FileListUtils::GetCreationDateTime(path), u"");
        EXPECT_EQ(FileListUtils::GetLastAccessDateTime(path), u"");
        EXPECT_EQ(FileListUtils::GetExifDTOrig(path), u"");
    }
}

} // namespace
