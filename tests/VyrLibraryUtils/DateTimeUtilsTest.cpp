// Date-times of files, and their parts.
#include <VyrLibraryUtils/DateTimeUtils.h>

#include <tests/support/Describe.h>
#include <tests/support/FileMoments.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/TimeZone.h>

#include <gtest/gtest.h>

#include <array>
#include <limits>

using VyrLibraryUtils::DateTimeUtils;
using VyrTests::Describe;
using VyrTests::ScratchFolder;
using VyrTests::TicksOfUnixTime;
using VyrTests::TimeZone;

namespace {

/// 1 January and 1 July 2024, 12:00:00 UTC.
constexpr std::int64_t winterNoon = 1'704'110'400;
constexpr std::int64_t summerNoon = 1'719'835'200;

COleDateTime WithStatus(COleDateTime::DateTimeStatus status)
{
    COleDateTime dateTime(2024, 3, 15, 13, 5, 9);
    dateTime.SetStatus(status);
    return dateTime;
}

TEST(DateTimeUtilsOfFile, IsLocalTimeWithTheOffsetOfItsOwnDate)
{
    const TimeZone zone("Europe/Berlin");
    if (!zone.IsSet())
        GTEST_SKIP() << zone.WhyNot();
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a");
    VyrTests::StampFile(file, TicksOfUnixTime(winterNoon), TicksOfUnixTime(summerNoon));
    EXPECT_EQ(Describe(DateTimeUtils::GetDateModified(file)), "2024-01-01 13:00:00");
    EXPECT_EQ(Describe(DateTimeUtils::GetDateAccessed(file)), "2024-07-01 14:00:00");
}

TEST(DateTimeUtilsOfFile, DropsFractionsOfASecond)
{
    const ScratchFolder scratch;
    const CString whole = scratch.WriteFile(u"whole");
    const CString fractions = scratch.WriteFile(u"fractions");
    VyrTests::StampFile(whole, TicksOfUnixTime(winterNoon), TicksOfUnixTime(-1));
    VyrTests::StampFile(fractions, TicksOfUnixTime(winterNoon, 9'999'999), TicksOfUnixTime(-1, 5'000'000));
    EXPECT_EQ(Describe(DateTimeUtils::GetDateModified(fractions)), Describe(DateTimeUtils::GetDateModified(whole)));
    EXPECT_EQ(DateTimeUtils::GetDateModified(fractions).GetSecond(), 0);
    EXPECT_EQ(Describe(DateTimeUtils::GetDateAccessed(fractions)), Describe(DateTimeUtils::GetDateAccessed(whole)));
    EXPECT_EQ(DateTimeUtils::GetDateAccessed(fractions).GetSecond(), 59);
}

TEST(DateTimeUtilsOfFile, ReadsFoldersToo)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"file");
    const CString folder = scratch.MakeFolder(u"folder");
    for (const CString& path : {file, folder})
        VyrTests::StampFile(path, TicksOfUnixTime(summerNoon), TicksOfUnixTime(winterNoon));
    EXPECT_EQ(DateTimeUtils::GetDateModified(folder).GetYear(), 2024);
    EXPECT_EQ(Describe(DateTimeUtils::GetDateModified(folder)), Describe(DateTimeUtils::GetDateModified(file)));
    EXPECT_EQ(Describe(DateTimeUtils::GetDateAccessed(folder)), Describe(DateTimeUtils::GetDateAccessed(file)));
}

TEST(DateTimeUtilsOfFile, KnowsWhenItWasCreated)
{
    const ScratchFolder scratch;
    const COleDateTime created = DateTimeUtils::GetDateCreated(scratch.WriteFile(u"a"));
    EXPECT_EQ(created.GetStatus(), COleDateTime::valid);
    EXPECT_GE(created.GetYear(), 2024);
}

TEST(DateTimeUtilsOfFile, CreationIsNotTheLastChange)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    VyrTests::StampFile(path, TicksOfUnixTime(summerNoon), TicksOfUnixTime(summerNoon));
    const auto created = VyrPlatform::FileTimes::GetCreated(path);
    ASSERT_TRUE(created);
    if (*created == TicksOfUnixTime(summerNoon))
        GTEST_SKIP() << "this file system tells no creation time of its own";
    EXPECT_EQ(Describe(DateTimeUtils::GetDateCreated(path)), Describe(VyrPlatform::FileTimes::ToLocal(*created)));
    EXPECT_NE(Describe(DateTimeUtils::GetDateCreated(path)), Describe(DateTimeUtils::GetDateModified(path)));
}

TEST(DateTimeUtilsOfFile, IsInvalidForMissingFiles)
{
    const ScratchFolder scratch;
    for (const CString& path : {scratch.Path(u"missing"), CString()}) {
        EXPECT_EQ(Describe(DateTimeUtils::GetDateModified(path)), "invalid");
        EXPECT_EQ(Describe(DateTimeUtils::GetDateCreated(path)), "invalid");
        EXPECT_EQ(Describe(DateTimeUtils::GetDateAccessed(path)), "invalid");
    }
}

TEST(DateTimeUtilsDay, BeginsAtMidnightAndEndsASecondBeforeTheNext)
{
    const COleDateTime moments[] = {
        {2024, 2, 29, 0, 0, 0},   {2024, 2, 29, 23, 59, 59}, {1899, 12, 30, 6, 0, 0},
        {1899, 12, 29, 18, 0, 0}, {100, 1, 1, 12, 0, 0},     {9999, 12, 31, 23, 59, 59},
    };
    for (const COleDateTime& moment : moments) {
        const std::string day = Describe(moment).substr(0, 10);
        EXPECT_EQ(Describe(DateTimeUtils::GetBeginDateTime(moment)), day + " 00:00:00");
        EXPECT_EQ(Describe(DateTimeUtils::GetEndDateTime(moment)), day + " 23:59:59");
    }
}

TEST(DateTimeUtilsDay, DoesNotChangeAnInvalidDateTime)
{
    for (const auto status : {COleDateTime::invalid, COleDateTime::null}) {
        const COleDateTime given = WithStatus(status);
        EXPECT_EQ(DateTimeUtils::GetBeginDateTime(given).GetStatus(), status);
        EXPECT_EQ(DateTimeUtils::GetBeginDateTime(given).m_dt, given.m_dt);
        EXPECT_EQ(DateTimeUtils::GetEndDateTime(given).GetStatus(), status);
        EXPECT_EQ(DateTimeUtils::GetEndDateTime(given).m_dt, given.m_dt);
    }
}

TEST(DateTimeUtilsCombine, TakesTheDateOfTheFirstAndTheTimeOfTheSecond)
{
    EXPECT_EQ(Describe(DateTimeUtils::CombineDateTime({2024, 2, 29, 1, 2, 3}, {1999, 12, 31, 23, 59, 58})),
              "2024-02-29 23:59:58");
    EXPECT_EQ(Describe(DateTimeUtils::CombineDateTime({1850, 5, 6, 7, 8, 9}, {1851, 1, 1, 10, 11, 12})),
              "1850-05-06 10:11:12");
}

TEST(DateTimeUtilsCombine, IsInvalidWhereEitherIsNotValid)
{
    const COleDateTime valid(2024, 3, 15, 13, 5, 9);
    for (const auto status : {COleDateTime::invalid, COleDateTime::null}) {
        EXPECT_EQ(Describe(DateTimeUtils::CombineDateTime(WithStatus(status), valid)), "invalid");
        EXPECT_EQ(Describe(DateTimeUtils::CombineDateTime(valid, WithStatus(status))), "invalid");
    }
}

/// The six parts of `path` and `given` under `mode`, as text.
std::string PartsText(const CString& path, const COleDateTime& given, int mode)
{
    std::array<int, 6> parts{};
    for (int part = 0; part < 6; ++part)
        parts[static_cast<std::size_t>(part)] = DateTimeUtils::GetDateTime(path, given, mode, part);
    return Describe({parts[0], parts[1], parts[2], parts[3], parts[4], parts[5]});
}

TEST(DateTimeUtilsPart, IsThatOfTheValueOrTheFileByMode)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a");
    VyrTests::StampFile(file, VyrTests::ToFileTicks({2024, 1, 2, 3, 4, 5}), TicksOfUnixTime(0));
    const COleDateTime given(2019, 10, 11, 12, 13, 14);
    EXPECT_EQ(PartsText(file, given, 0), "2019-10-11 12:13:14");
    EXPECT_EQ(PartsText(file, given, 1), "2019-10-11 03:04:05");
    EXPECT_EQ(PartsText(file, given, 2), "2024-01-02 12:13:14");
    EXPECT_EQ(PartsText(file, given, 3), "2024-01-02 03:04:05");
    for (const int mode : {4, -1, 7, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(PartsText(file, given, mode), "2019-10-11 12:13:14") << mode;
}

TEST(DateTimeUtilsPart, OfTheFileIsWrittenBackAsTheSameInstant)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a");
    for (const std::int64_t moment : {winterNoon, summerNoon, std::int64_t{0}, std::int64_t{951'782'399}}) {
        VyrTests::StampFile(file, TicksOfUnixTime(moment, 1'234'567), TicksOfUnixTime(0));
        std::array<int, 6> parts{};
        for (int part = 0; part < 6; ++part)
            parts[static_cast<std::size_t>(part)] = DateTimeUtils::GetDateTime(file, {}, 3, part);
        const COleDateTime local(parts[0], parts[1], parts[2], parts[3], parts[4], parts[5]);
        EXPECT_EQ(VyrTests::ToFileTicks(local), TicksOfUnixTime(moment)) << Describe(local);
    }
}

TEST(DateTimeUtilsPart, IsMinusOneForAMissingOne)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a");
    const COleDateTime given(2019, 10, 11, 12, 13, 14);
    for (const int part : {-1, 6, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        for (const int mode : {0, 1, 2, 3})
            EXPECT_EQ(DateTimeUtils::GetDateTime(file, given, mode, part), -1);
    for (int part = 0; part < 6; ++part) {
        EXPECT_EQ(DateTimeUtils::GetDateTime(scratch.Path(u"missing"), given, 3, part), -1);
        EXPECT_EQ(DateTimeUtils::GetDateTime(file, WithStatus(COleDateTime::invalid), 0, part), -1);
        EXPECT_EQ(DateTimeUtils::GetDateTime(file, WithStatus(COleDateTime::null), 0, part), -1);
    }
}

} // namespace
