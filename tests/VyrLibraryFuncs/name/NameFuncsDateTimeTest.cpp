// The date-time rename: which date-time, the position of its text, and the text compared with the C library's.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/files/FileTimes.h>

#include <tests/VyrLibraryFuncs/PrivateOperations.h>
#include <tests/support/FileMoments.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>
#include <tests/support/TimeZone.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <limits>
#include <string>
#include <vector>

using VyrLibraryFuncs::NameFuncs;
using VyrLibraryUtils::DateTimeUtils;
using VyrTests::ScratchFolder;

namespace {

/// An item of `path` whose new name is only the date-time.
NameFuncs::ITEM Dated(const CString& path, int target, const char16_t* format = u"yyyyMMdd_HHmmss")
{
    NameFuncs::ITEM item;
    item.filePath = path;
    item.dirPath = u"/d/";
    item.fileName = u"name";
    item.extension = u".jpg";
    item.dateTimeTarget = target;
    item.dateTimeFormat = format;
    return item;
}

CString DatedPath(const CString& path, int target)
{
    return NameFuncs::GetDateTimeFilePath(Dated(path, target));
}

void SetModified(const CString& path, std::chrono::sys_seconds time)
{
    std::filesystem::last_write_time(VyrTests::ToStdPath(path), std::chrono::file_clock::from_sys(time));
}

CString WritePicture(const ScratchFolder& scratch, const std::string& taken)
{
    VyrTests::PictureFacts facts;
    facts.dateTimeOriginal = taken;
    return scratch.WriteFile(u"picture.jpg", VyrTests::BuildJpeg(facts));
}

/// A moment, and how far a zone's clocks are ahead of UTC then.
struct Moment
{
    std::chrono::sys_seconds time;
    std::chrono::hours offset;
};

constexpr Moment Late(int year, unsigned month, unsigned day, int offset)
{
    using namespace std::chrono;
    const sys_days date = std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day);
    return {date + hours(22) + minutes(58) + seconds(7), hours(offset)};
}

/// The C library's text for a time in UTC.
CString TextOf(std::chrono::sys_seconds time)
{
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    char text[100];
    const std::size_t length = std::strftime(text, sizeof text, "%Y%m%d_%H%M%S", std::gmtime(&seconds));
    return CString(std::u16string(text, text + length));
}

void ExpectModifiedTimes(const std::vector<Moment>& moments)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.jpg");
    for (const Moment& moment : moments) {
        SetModified(path, moment.time);
        EXPECT_EQ(DatedPath(path, 0), u"/d/" + TextOf(moment.time + moment.offset) + u".jpg");
    }
}

} // namespace

TEST(NameFuncsDateTime, TextIsAtThePosition)
{
    const ScratchFolder scratch;
    NameFuncs::ITEM item = Dated(WritePicture(scratch, "2024:07:19 18:45:03"), 3);
    const char16_t* const expected[] = {u"/d/20240719_184503.jpg", u"/d/20240719_184503name.jpg",
                                        u"/d/name20240719_184503.jpg"};
    for (const char16_t* const path : expected) {
        EXPECT_EQ(NameFuncs::GetDateTimeFilePath(item), path);
        ++item.dateTimePosition;
    }
}

TEST(NameFuncsDateTime, UnknownPositionGivesAnEmptyName)
{
    NameFuncs::ITEM item = Dated(u"", 9);
    for (const int position : {3, 4, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        item.dateTimePosition = position;
        EXPECT_EQ(NameFuncs::GetDateTimeFilePath(item), u"/d/.jpg") << position;
    }
}

TEST(NameFuncsDateTime, UnknownTargetIsTheZeroDateTime)
{
    for (const int target : {4, 7, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(DatedPath(u"/no such file", target), u"/d/18991230_000000.jpg") << target;
}

TEST(NameFuncsDateTime, ModifiedTimeAgreesWithTheCLibrary)
{
    const VyrTests::TimeZone zone("UTC");
    if (!zone.IsSet())
        GTEST_SKIP() << zone.WhyNot();
    ExpectModifiedTimes(
        {Late(2024, 2, 28, 0), Late(2023, 7, 31, 0), Late(2000, 2, 29, 0), Late(1999, 12, 31, 0), Late(1980, 6, 1, 0)});
}

TEST(NameFuncsDateTime, ModifiedTimeHasTheOffsetOfItsOwnDate)
{
    const VyrTests::TimeZone zone("Europe/Berlin");
    if (!zone.IsSet())
        GTEST_SKIP() << zone.WhyNot();
    ExpectModifiedTimes(
        {Late(2024, 2, 28, 1), Late(2023, 7, 31, 2), Late(2000, 2, 29, 1), Late(1999, 12, 31, 1), Late(2010, 6, 1, 2)});
}

TEST(NameFuncsDateTime, EachTargetTakesItsOwnTimeOfTheFile)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.jpg");
    SetModified(path, std::chrono::sys_days(std::chrono::year(1980) / 6 / 15));
    const COleDateTime times[] = {DateTimeUtils::GetDateModified(path), DateTimeUtils::GetDateCreated(path),
                                  DateTimeUtils::GetDateAccessed(path)};
    EXPECT_EQ(times[0].GetYear(), 1980);
    EXPECT_NE(times[2].GetYear(), 1980);
    for (int target = 0; target <= 2; ++target) {
        CString expected;
        expected.Format(u"/d/%04d-%02d-%02d.jpg", times[target].GetYear(), times[target].GetMonth(),
                        times[target].GetDay());
        EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(path, target, u"yyyy-MM-dd")), expected) << target;
    }
}

TEST(NameFuncsDateTime, TimeOfTakingComesFromThePicture)
{
    const ScratchFolder scratch;
    EXPECT_EQ(DatedPath(WritePicture(scratch, "1999:12:31 23:59:59"), 3), u"/d/19991231_235959.jpg");
}

TEST(NameFuncsDateTime, MissingDateTimeGivesAnEmptyText)
{
    const ScratchFolder scratch;
    for (int target = 0; target <= 3; ++target)
        EXPECT_EQ(DatedPath(scratch.Path(u"missing.jpg"), target), u"/d/.jpg") << target;
    EXPECT_EQ(DatedPath(scratch.WriteFile(u"text.jpg", "no picture"), 3), u"/d/.jpg");
    EXPECT_EQ(DatedPath(WritePicture(scratch, ""), 3), u"/d/.jpg");
    EXPECT_EQ(DatedPath(WritePicture(scratch, "0000:00:00 00:00:00"), 3), u"/d/.jpg");
    EXPECT_EQ(DatedPath(WritePicture(scratch, "2024:02:30 10:00:00"), 3), u"/d/.jpg");
}

TEST(NameFuncsDateTime, EmptyFormatGivesAnEmptyText)
{
    NameFuncs::ITEM item = Dated(u"", 9, u"");
    item.dateTimePosition = 1;
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(item), u"/d/name.jpg");
}

TEST(NameFuncsDateTime, FormatIsPassedThroughWithItsTokens)
{
    NameFuncs::ITEM item = Dated(u"", 9, u"yyyy<Folder>100%d 'd'");
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(item), u"/d/1899<Folder>100%30 d.jpg");
}

TEST(NameFuncsDateTime, SelectedDateTimeIsTheOneOfItsTarget)
{
    using VyrLibraryFuncs::PrivateOperations;
    const ScratchFolder scratch;
    const CString picture = WritePicture(scratch, "2001:02:03 04:05:06");
    SetModified(picture, Late(2019, 5, 6, 0).time);
    EXPECT_EQ(PrivateOperations::GetSelectedDateTime(picture, 0), DateTimeUtils::GetDateModified(picture));
    EXPECT_EQ(PrivateOperations::GetSelectedDateTime(picture, 1), DateTimeUtils::GetDateCreated(picture));
    EXPECT_EQ(VyrPlatform::FileTimes::GetCreated(picture) == VyrPlatform::FileTimes::GetModified(picture),
              PrivateOperations::GetSelectedDateTime(picture, 1) == PrivateOperations::GetSelectedDateTime(picture, 0));
    EXPECT_EQ(PrivateOperations::GetSelectedDateTime(picture, 2), DateTimeUtils::GetDateAccessed(picture));
    EXPECT_EQ(PrivateOperations::GetSelectedDateTime(picture, 3), COleDateTime(2001, 2, 3, 4, 5, 6));
    for (const int target : {4, 7, -1, std::numeric_limits<int>::min()}) {
        const COleDateTime zero = PrivateOperations::GetSelectedDateTime(picture, target);
        EXPECT_EQ(zero, 0.0);
        EXPECT_EQ(zero.GetStatus(), COleDateTime::valid);
    }
    EXPECT_EQ(PrivateOperations::GetSelectedDateTime(u"", 0).GetStatus(), COleDateTime::invalid);
}

TEST(NameFuncsDateTime, FolderIsDatedByItsOwnTime)
{
    const ScratchFolder scratch;
    const CString path = scratch.MakeFolder(u"d");
    VyrTests::StampFile(path, VyrTests::TicksOfUnixTime(1'550'000'000), VyrTests::TicksOfUnixTime(1'600'000'000));
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(path, 0, u"yyyy")), u"/d/2019.jpg");
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(path, 2, u"yyyy")), u"/d/2020.jpg");
}
