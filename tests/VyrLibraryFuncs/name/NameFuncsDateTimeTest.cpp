// The date-time rename: which date-time, where its text goes, and the text against the C library's.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>
#include <tests/support/TimeZone.h>

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <limits>
#include <string>

using VyrLibraryFuncs::NameFuncs;
using VyrTests::ScratchFolder;

namespace {

/// An item of `path` whose new name is the date-time alone.
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

/// The last-write time that `path` has, written by the C library.
CString ModifiedText(const CString& path)
{
    const auto written = std::filesystem::last_write_time(VyrTests::ToStdPath(path));
    const std::time_t seconds = std::chrono::system_clock::to_time_t(std::chrono::file_clock::to_sys(written));
    char text[100];
    const std::size_t length = std::strftime(text, sizeof text, "%Y%m%d_%H%M%S", std::localtime(&seconds));
    return CString(std::u16string(text, text + length));
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

/// Writes times of summer and winter into a file, and compares the texts.
void ExpectModifiedTimesOfTheCLibrary()
{
    using namespace std::chrono;
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.jpg");
    for (const sys_days day : {sys_days(2024y / 1 / 5), sys_days(2023y / 7 / 31), sys_days(2000y / 2 / 29),
                               sys_days(1999y / 12 / 31), sys_days(1980y / 6 / 1)}) {
        SetModified(path, day + 22h + 58min + 7s);
        EXPECT_EQ(DatedPath(path, 0), u"/d/" + ModifiedText(path) + u".jpg");
    }
}

} // namespace

TEST(NameFuncsDateTime, TextGoesWhereThePositionSays)
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
    ExpectModifiedTimesOfTheCLibrary();
}

TEST(NameFuncsDateTime, ModifiedTimeHasTheOffsetOfItsOwnDate)
{
    const VyrTests::TimeZone zone("Europe/Berlin");
    if (!zone.IsSet())
        GTEST_SKIP() << zone.WhyNot();
    ExpectModifiedTimesOfTheCLibrary();
}

TEST(NameFuncsDateTime, CreatedAndAccessedTimesAreReadToo)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.jpg");
    const CString today = u"/d/" + ModifiedText(path).Left(4) + u".jpg";
    SetModified(path, std::chrono::sys_days(std::chrono::year(1980) / 6 / 15));
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(path, 0, u"yyyy")), u"/d/1980.jpg");
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(path, 1, u"yyyy")), today);
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(path, 2, u"yyyy")), today);
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
