// The companion's promises to its callers about date-times, each tested by itself.
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/FileListUtils.h>

#include <tests/support/Describe.h>
#include <tests/support/FileMoments.h>
#include <tests/support/FixedClock.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/UserLocale.h>

#include <climits>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

using namespace VyrLibraryUtils;
using VyrTests::Describe;
using VyrTests::FixedClock;
using VyrTests::ScratchFolder;
using VyrTests::UserLocale;

namespace {

const COleDateTime afternoon(2024, 3, 15, 13, 5, 9);

COleDateTime WithStatus(COleDateTime::DateTimeStatus status)
{
    COleDateTime dateTime = afternoon;
    dateTime.SetStatus(status);
    return dateTime;
}

std::string Written(const COleDateTime& dateTime, const char16_t* format)
{
    const CString pattern = DateTimeUtils::GetDateTimeFormat(format, CString());
    return VyrPlatform::Encoding::ToUtf8(DateTimeUtils::GetOleDateTimeFormat(dateTime, pattern));
}

} // namespace

TEST(CompanionContract, FileTimesAreToldEachByItself)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a.txt", "x");
    VyrTests::StampFile(file, VyrTests::ToFileTicks({2019, 1, 2, 3, 4, 5}),
                        VyrTests::ToFileTicks({2020, 2, 3, 4, 5, 6}));
    EXPECT_EQ(FileListUtils::GetLastWriteDateTime(file), u"2019/01/02 03:04:05");
    EXPECT_EQ(FileListUtils::GetLastAccessDateTime(file), u"2020/02/03 04:05:06");
    EXPECT_EQ(DateTimeUtils::GetDateTime(file, afternoon, 3, 0), 2019);
    EXPECT_EQ(DateTimeUtils::GetDateModified(file).GetYear(), 2019);
    EXPECT_EQ(DateTimeUtils::GetDateAccessed(file).GetYear(), 2020);
    EXPECT_EQ(DateTimeUtils::GetDateCreated(file).GetStatus(), COleDateTime::valid);
    EXPECT_EQ(FileListUtils::GetCreationDateTime(file).GetLength(), 19);
}

TEST(CompanionContract, FolderHasFileTimesToo)
{
    const ScratchFolder scratch;
    const CString folder = scratch.MakeFolder(u"d");
    VyrTests::StampFile(folder, VyrTests::TicksOfUnixTime(1'550'000'000), VyrTests::TicksOfUnixTime(1'600'000'000));
    EXPECT_EQ(DateTimeUtils::GetDateModified(folder).GetYear(), 2019);
    EXPECT_EQ(DateTimeUtils::GetDateAccessed(folder).GetYear(), 2020);
}

TEST(CompanionContract, MissingFileHasInvalidTimesAndEmptyTexts)
{
    const ScratchFolder scratch;
    for (const CString& path : {scratch.Path(u"missing"), CString()}) {
        EXPECT_EQ(Describe(DateTimeUtils::GetDateModified(path)), "invalid");
        EXPECT_EQ(Describe(DateTimeUtils::GetDateCreated(path)), "invalid");
        EXPECT_EQ(Describe(DateTimeUtils::GetDateAccessed(path)), "invalid");
        EXPECT_EQ(FileListUtils::GetLastWriteDateTime(path), u"");
        EXPECT_EQ(FileListUtils::GetCreationDateTime(path), u"");
        EXPECT_EQ(FileListUtils::GetLastAccessDateTime(path), u"");
        EXPECT_EQ(FileListUtils::GetExifDTOrig(path), u"");
    }
}

TEST(CompanionContract, PictureMomentAsTextIsReadBack)
{
    const ScratchFolder scratch;
    VyrTests::PictureFacts facts;
    const CString text = FileListUtils::GetExifDTOrig(scratch.WriteFile(u"p.jpg", VyrTests::BuildJpeg(facts)));
    EXPECT_EQ(text, u"2024/07/19 18:45:03");
    EXPECT_EQ(Describe(DateTimeUtils::GetParseDateTime(text, 1, 0, 1024)), "2024-07-19 18:45:03");
    facts.dateTimeOriginal = "2024:13:19 18:45:03";
    EXPECT_EQ(FileListUtils::GetExifDTOrig(scratch.WriteFile(u"q.jpg", VyrTests::BuildJpeg(facts))), u"");
}

TEST(CompanionContract, ExifTextIsReadAndAnythingMalformedIsInvalid)
{
    EXPECT_EQ(Describe(DateTimeUtils::GetExifDateTime(u"2024:07:19 18:45:03")), "2024-07-19 18:45:03");
    EXPECT_EQ(Describe(DateTimeUtils::GetExifDateTime(u"2024:02:29 00:00:00")), "2024-02-29 00:00:00");
    for (const char16_t* const text :
         {u"", u"0000:00:00 00:00:00", u"    :  :     :  :  ", u"2023:02:29 10:00:00", u"2024:13:01 10:00:00",
          u"2024:00:01 10:00:00", u"2024:01:32 10:00:00", u"2024:01:01 24:00:00", u"2024:01:01 10:60:00",
          u"2024:01:01 10:00:60", u"2024-01-01 10:00:00", u"2024:01:01T10:00:00", u"2024:01:01", u"2024:01:01 10:00",
          u"2024:01:01 10:00:00Z", u" 2024:01:01 10:00:00", u"2024:1:01 10:00:000", u"+024:01:01 10:00:00",
          u"0099:01:01 00:00:00"})
        EXPECT_EQ(Describe(DateTimeUtils::GetExifDateTime(text)), "invalid") << testing::PrintToString(CString(text));
}

TEST(CompanionContract, InstallDateIsEightDigitsOfARealDay)
{
    EXPECT_EQ(Describe(DateTimeUtils::GetInstallDateTime(u"20240229")), "2024-02-29 00:00:00");
    for (const char16_t* const text : {u"", u"20230229", u"20240001", u"20240100", u"20241301", u"2024011",
                                       u"202401011", u"2024-1-1", u" 2024010", u"00000000", u"2024010a", u"1/1/2024"})
        EXPECT_EQ(Describe(DateTimeUtils::GetInstallDateTime(text)), "invalid")
            << testing::PrintToString(CString(text));
}

TEST(CompanionContract, UserFormatBecomesTextInEnglish)
{
    const UserLocale locale(u"en_US");
    const std::vector<std::pair<const char16_t*, const char*>> cases = {
        {u"yyyy", "2024"},   {u"yy", "24"},        {u"MMMM", "March"}, {u"MMM", "Mar"},
        {u"MM", "03"},       {u"M", "3"},          {u"dd", "15"},      {u"d", "15"},
        {u"EEEE", "Friday"}, {u"EEE", "Fri"},      {u"HH", "13"},      {u"H", "13"},
        {u"hh", "01"},       {u"h", "1"},          {u"mm", "05"},      {u"m", "5"},
        {u"ss", "09"},       {u"s", "9"},          {u"a", "PM"},       {u"yyyyMMddHHmmss", "20240315130509"},
        {u"'yyyy'", "yyyy"}, {u"''", "'"},         {u"'a''b'", "a'b"}, {u"'rest dd", "rest dd"},
        {u"%Y %", "%Y %"},   {u"100%d", "100%15"}, {u"%%", "%%"},      {u"<", "<"},
        {u"<dd", "<15"},     {u">dd", ">15"},      {u"", ""},
    };
    for (const auto& [format, text] : cases)
        EXPECT_EQ(Written(afternoon, format), text) << testing::PrintToString(CString(format));
}

TEST(CompanionContract, HoursOfTwelveCountFromTwelveAtNoonAndMidnight)
{
    const UserLocale locale(u"en_US");
    EXPECT_EQ(Written({2024, 3, 15, 0, 0, 0}, u"h hh H HH a"), "12 12 0 00 AM");
    EXPECT_EQ(Written({2024, 3, 15, 12, 0, 0}, u"h hh H HH a"), "12 12 12 12 PM");
    EXPECT_EQ(Written({2024, 3, 15, 23, 59, 59}, u"h m s"), "11 59 59");
}

TEST(CompanionContract, BoundsOfTheCalendarAreWritten)
{
    EXPECT_EQ(Written({100, 1, 1, 0, 0, 0}, u"yyyy-MM-dd"), "0100-01-01");
    EXPECT_EQ(Written({9999, 12, 31, 23, 59, 59}, u"yyyy-MM-dd HH:mm:ss"), "9999-12-31 23:59:59");
    EXPECT_EQ(Written(COleDateTime(), u"yyyyMMdd_HHmmss"), "18991230_000000");
    EXPECT_EQ(Written(COleDateTime(-1.25), u"yyyyMMdd_HHmmss"), "18991229_060000");
}

TEST(CompanionContract, TokensPassThroughTheFormatUnchanged)
{
    for (const char16_t* const format : {u"<Folder>", u"<Make>", u"<Model>", u"<dd yyyy>", u"<>", u"<100%>"})
        EXPECT_EQ(Written(afternoon, format), VyrPlatform::Encoding::ToUtf8(CString(format)));
    EXPECT_EQ(Written(afternoon, u"yyyy<Folder>MM<Folder>dd"), "2024<Folder>03<Folder>15");
    EXPECT_EQ(DateTimeUtils::GetDateTimeFormat(u"<Folder>", CString()), u"<Folder>");
}

TEST(CompanionContract, DateTimeThatIsNotValidIsWrittenAsNothing)
{
    for (const auto status : {COleDateTime::invalid, COleDateTime::null}) {
        EXPECT_EQ(Written(WithStatus(status), u"'x' yyyy"), "");
        EXPECT_EQ(DateTimeUtils::GetFormatedDate(WithStatus(status)), u"");
        EXPECT_EQ(DateTimeUtils::GetFormatedDateTime(WithStatus(status)), u"");
    }
}

TEST(CompanionContract, DayBeginsAndEndsOnItself)
{
    for (const COleDateTime& moment :
         {afternoon, COleDateTime(1850, 6, 7, 18, 0, 0), COleDateTime(1899, 12, 29, 6, 0, 0), COleDateTime(),
          COleDateTime(100, 1, 1, 23, 59, 59), COleDateTime(9999, 12, 31, 0, 0, 0)}) {
        const std::string day = Describe(moment).substr(0, 10);
        EXPECT_EQ(Describe(DateTimeUtils::GetBeginDateTime(moment)), day + " 00:00:00");
        EXPECT_EQ(Describe(DateTimeUtils::GetEndDateTime(moment)), day + " 23:59:59");
    }
    EXPECT_EQ(Describe(DateTimeUtils::GetBeginDateTime(WithStatus(COleDateTime::null))), "null");
    EXPECT_EQ(Describe(DateTimeUtils::GetEndDateTime(WithStatus(COleDateTime::invalid))), "invalid");
}

TEST(CompanionContract, DateAndTimeOfDayAreCombined)
{
    EXPECT_EQ(Describe(DateTimeUtils::CombineDateTime({2024, 3, 15, 1, 2, 3}, {1999, 8, 7, 22, 33, 44})),
              "2024-03-15 22:33:44");
    EXPECT_EQ(Describe(DateTimeUtils::CombineDateTime({1850, 6, 7, 18, 0, 0}, {1899, 12, 29, 6, 0, 0})),
              "1850-06-07 06:00:00");
    for (const auto status : {COleDateTime::invalid, COleDateTime::null}) {
        EXPECT_EQ(Describe(DateTimeUtils::CombineDateTime(WithStatus(status), afternoon)), "invalid");
        EXPECT_EQ(Describe(DateTimeUtils::CombineDateTime(afternoon, WithStatus(status))), "invalid");
    }
}

TEST(CompanionContract, CalendarPartComesFromTheValueOrTheFileAsTheModeSays)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a.txt", "x");
    const VyrPlatform::FileTicks ticks = VyrTests::ToFileTicks({2019, 11, 22, 3, 44, 55});
    VyrTests::StampFile(file, ticks, ticks);
    const std::vector<int> given = {2024, 3, 15, 13, 5, 9};
    const std::vector<int> ofFile = {2019, 11, 22, 3, 44, 55};
    for (int part = 0; part <= 5; ++part) {
        const auto place = static_cast<std::size_t>(part);
        const bool isDate = part <= 2;
        EXPECT_EQ(DateTimeUtils::GetDateTime(file, afternoon, 0, part), given[place]);
        EXPECT_EQ(DateTimeUtils::GetDateTime(file, afternoon, 1, part), isDate ? given[place] : ofFile[place]);
        EXPECT_EQ(DateTimeUtils::GetDateTime(file, afternoon, 2, part), isDate ? ofFile[place] : given[place]);
        EXPECT_EQ(DateTimeUtils::GetDateTime(file, afternoon, 3, part), ofFile[place]);
        for (const int mode : {INT_MIN, -1, 4, INT_MAX})
            EXPECT_EQ(DateTimeUtils::GetDateTime(file, afternoon, mode, part), given[place]);
    }
}

TEST(CompanionContract, UnknownCalendarPartAndUnknownDateTimeGiveMinusOne)
{
    const ScratchFolder scratch;
    const CString missing = scratch.Path(u"missing");
    for (const int part : {INT_MIN, -1, 6, INT_MAX})
        for (const int mode : {INT_MIN, 0, 3, INT_MAX})
            EXPECT_EQ(DateTimeUtils::GetDateTime(scratch.Path(), afternoon, mode, part), -1);
    for (int part = 0; part <= 5; ++part) {
        EXPECT_EQ(DateTimeUtils::GetDateTime(missing, afternoon, 3, part), -1);
        EXPECT_EQ(DateTimeUtils::GetDateTime(scratch.Path(), WithStatus(COleDateTime::null), 0, part), -1);
        EXPECT_EQ(DateTimeUtils::GetDateTime(missing, afternoon, 0, part) >= 0, true);
        EXPECT_GE(DateTimeUtils::GetDateTime(scratch.Path(), WithStatus(COleDateTime::invalid), 3, part), 0);
    }
}

TEST(CompanionContract, CurrentDateTimeIsReadBackUnderEveryLocale)
{
    for (const COleDateTime& moment :
         {afternoon, COleDateTime(2024, 12, 1, 0, 0, 0), COleDateTime(2031, 1, 12, 23, 59, 59)}) {
        const FixedClock clock(moment);
        for (const char16_t* const name : {u"en_US", u"de_DE", u"tr_TR", u"ja_JP", u"C"}) {
            const UserLocale locale(name);
            const CString text = DateTimeUtils::GetCurrentDateTime();
            EXPECT_EQ(Describe(DateTimeUtils::GetParseDateTime(text, 1, 0, 1024)), Describe(moment));
            EXPECT_EQ(DateTimeUtils::GetCurrentDateTimeEx(), text);
        }
    }
}

TEST(CompanionContract, ParsedTextIsADateTimeOrInvalid)
{
    const UserLocale locale(u"en_US");
    EXPECT_EQ(Describe(DateTimeUtils::GetParseDateTime(u"2024-01-05 10:30:00", 1, 0, 1024)), "2024-01-05 10:30:00");
    EXPECT_EQ(Describe(DateTimeUtils::GetParseDateTime(u"2024-Jan-05 10:30:00", 1, 0, 1024)), "2024-01-05 10:30:00");
    EXPECT_EQ(Describe(DateTimeUtils::GetParseDateTime(u"2024/02/29", 1, 0, 1024)), "2024-02-29 00:00:00");
    EXPECT_EQ(Describe(DateTimeUtils::GetParseDateTime(u"1/5/2024", INT_MIN, UINT32_MAX, 0)), "2024-01-05 00:00:00");
    for (const char16_t* const text :
         {u"", u" ", u"2023/02/29", u"2024/13/01", u"2024/01/01 24:00:00", u"2024", u"10:30:00", u"2024-01-05T10:30:00",
          u"x", u"2024/01/01 10:00:00 x", u"99999999999/1/1", u"-2024/01/01"})
        EXPECT_EQ(Describe(DateTimeUtils::GetParseDateTime(text, 1, 0, 1024)), "invalid")
            << testing::PrintToString(CString(text));
}

TEST(CompanionContract, DisplayedDateIsReadBackToTheDay)
{
    for (const char16_t* const name : {u"en_US", u"de_DE", u"ja_JP"}) {
        const UserLocale locale(name);
        const CString date = DateTimeUtils::GetFormatedDate(afternoon);
        EXPECT_EQ(Describe(DateTimeUtils::GetParseDateTime(date, 1, 0, 1024)), "2024-03-15 00:00:00");
        const CString both = DateTimeUtils::GetFormatedDateTime(afternoon);
        EXPECT_EQ(Describe(DateTimeUtils::GetParseDateTime(both, 1, 0, 1024)), "2024-03-15 13:05:09");
        EXPECT_TRUE(both.View().starts_with(date.View()));
    }
}
