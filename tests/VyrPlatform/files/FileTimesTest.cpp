// A file's three times, and their conversion to local time.
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FileTimes.h>
#include <tests/support/FileMoments.h>
#include <tests/support/FileState.h>
#include <tests/support/Links.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/TimeZone.h>

#include <gtest/gtest.h>

#include <chrono>
#include <limits>
#include <thread>
#include <vector>

namespace FileTimes = VyrPlatform::FileTimes;
using VyrPlatform::FileTicks;
using VyrTests::ScratchFolder;

namespace {

using namespace std::chrono;

constexpr FileTicks ticksPerSecond = 10'000'000;
constexpr sys_days firstDay = January / 1 / 1601;

/// The ticks at which a clock in Greenwich shows this.
constexpr FileTicks Utc(year_month_day date, int hour, int minute, int second, FileTicks fraction = 0)
{
    const seconds time = sys_days(date) - firstDay + hours(hour) + minutes(minute) + seconds(second);
    return time.count() * ticksPerSecond + fraction;
}

void ExpectLocal(FileTicks ticks, year_month_day date, int hour, int minute, int second)
{
    const COleDateTime local = FileTimes::ToLocal(ticks);
    const COleDateTime expected(static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
                                static_cast<int>(static_cast<unsigned>(date.day())), hour, minute, second);
    EXPECT_EQ(local.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(local.m_dt, expected.m_dt) << local.GetYear() << '-' << local.GetMonth() << '-' << local.GetDay() << ' '
                                         << local.GetHour() << ':' << local.GetMinute() << ':' << local.GetSecond();
}

/// The time zone in which the texts of this file are.
class FileTimesInBerlin : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!m_zone.IsSet())
            GTEST_SKIP() << m_zone.WhyNot();
    }

private:
    VyrTests::TimeZone m_zone{"Europe/Berlin"};
};

} // namespace

TEST(FileTimes, AreThoseThatWereSet)
{
    const ScratchFolder scratch;
    constexpr FileTicks modified = Utc(2024y / July / 19, 18, 45, 3, 1'234'500);
    constexpr FileTicks accessed = Utc(2025y / January / 2, 3, 4, 5, 9'999'900);
    for (const CString& path : {scratch.WriteFile(u"a"), scratch.MakeFolder(u"folder")}) {
        VyrTests::StampFile(path, modified, accessed);
        EXPECT_EQ(FileTimes::GetModified(path), modified);
        EXPECT_EQ(FileTimes::GetAccessed(path), accessed);
    }
}

TEST(FileTimes, MayLieBefore1970)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    constexpr FileTicks modified = Utc(1969y / December / 31, 23, 59, 59, 5'000'000);
    constexpr FileTicks accessed = Utc(1950y / March / 4, 5, 6, 7);
    VyrTests::StampFile(path, modified, accessed);
    EXPECT_EQ(FileTimes::GetModified(path), modified);
    EXPECT_EQ(FileTimes::GetAccessed(path), accessed);
}

TEST(FileTimes, CreationOfANewFileIsNow)
{
    const ScratchFolder scratch;
    // Nanoseconds since 1601 would not fit into their type.
    const auto now = [] {
        return (floor<microseconds>(system_clock::now()) - sys_time<microseconds>(firstDay)).count() * 10;
    };
    // File systems stamp with the time of their last clock tick.
    const FileTicks before = now() - ticksPerSecond;
    const std::optional<FileTicks> created = FileTimes::GetCreated(scratch.WriteFile(u"a"));
    ASSERT_TRUE(created);
    EXPECT_GE(*created, before);
    EXPECT_LE(*created, now() + ticksPerSecond);
}

TEST(FileTimes, MissingFileHasNone)
{
    const ScratchFolder scratch;
    constexpr char16_t withNul[] = u"a\0b";
    scratch.WriteFile(u"a");
    for (const CString& path : {scratch.Path(u"missing"), scratch.Path(u"a/below"), CString(),
                                scratch.Path(u"") + CString(std::u16string_view(withNul, 3))}) {
        EXPECT_EQ(FileTimes::GetModified(path), std::nullopt);
        EXPECT_EQ(FileTimes::GetCreated(path), std::nullopt);
        EXPECT_EQ(FileTimes::GetAccessed(path), std::nullopt);
    }
}

TEST(FileTimes, OfALinkAreThoseOfItsTarget)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a");
    if (const std::string reason = VyrTests::MakeLink(file, scratch.Path(u"link")); !reason.empty())
        GTEST_SKIP() << reason;
    constexpr FileTicks modified = Utc(2020y / February / 29, 1, 2, 3);
    VyrTests::StampFile(file, modified, modified);
    EXPECT_EQ(FileTimes::GetModified(scratch.Path(u"link")), modified);
    ASSERT_EQ(VyrTests::MakeLink(scratch.Path(u"missing"), scratch.Path(u"dangling")), "");
    EXPECT_EQ(FileTimes::GetModified(scratch.Path(u"dangling")), std::nullopt);
    EXPECT_EQ(FileTimes::GetCreated(scratch.Path(u"dangling")), std::nullopt);
}

TEST(FileTimes, ModifiedIsSetToTheTickAndNothingElse)
{
    const ScratchFolder scratch;
    constexpr FileTicks before = Utc(2025y / January / 2, 3, 4, 5);
    for (const CString& path : {scratch.WriteFile(u"a", "content"), scratch.MakeFolder(u"folder")})
        for (const FileTicks modified :
             {Utc(2024y / July / 19, 18, 45, 3, 1'234'567), Utc(1969y / December / 31, 23, 59, 59, 5'000'000),
              Utc(2107y / March / 1, 0, 0, 0)}) {
            VyrTests::StampFile(path, before, before);
            EXPECT_EQ(FileTimes::SetModified(path, modified), 0U);
            EXPECT_EQ(FileTimes::GetModified(path), modified);
            EXPECT_EQ(FileTimes::GetAccessed(path), before);
        }
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
}

TEST(FileTimes, CreatedIsSetToTheTickAndNothingElse)
{
    const ScratchFolder scratch;
    constexpr FileTicks modified = Utc(2025y / January / 2, 3, 4, 5, 1'000'000);
    constexpr FileTicks created = Utc(2001y / July / 19, 18, 45, 3, 1'234'567);
    for (const CString& path : {scratch.WriteFile(u"a", "content"), scratch.MakeFolder(u"folder")}) {
        VyrTests::StampFile(path, modified, modified);
        const std::optional<FileTicks> before = FileTimes::GetCreated(path);
        ASSERT_EQ(FileTimes::SetCreated(path, created), 0U);
        EXPECT_EQ(FileTimes::GetModified(path), modified);
        EXPECT_EQ(FileTimes::GetAccessed(path), modified);
        if (FileTimes::GetCreated(path) == before)
            GTEST_SKIP() << "Wine answers that it set the creation time, and drops it";
        EXPECT_EQ(FileTimes::GetCreated(path), created);
    }
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
}

TEST(FileTimes, AreWrittenToTheTick)
{
    const ScratchFolder scratch;
    constexpr FileTicks modified = Utc(2024y / July / 19, 18, 45, 3, 1'234'567);
    constexpr FileTicks accessed = Utc(1969y / December / 31, 23, 59, 59, 5'000'001);
    for (const CString& path : {scratch.WriteFile(u"a", "content"), scratch.MakeFolder(u"folder")}) {
        const bool isCreatedKept = VyrTests::KeepsCreationTime(path);
        const std::optional<FileTicks> created = FileTimes::GetCreated(path);
        EXPECT_EQ(FileTimes::Write(path, {.modified = modified, .accessed = accessed}), 0U);
        EXPECT_EQ(FileTimes::GetModified(path), modified);
        EXPECT_EQ(FileTimes::GetAccessed(path), accessed);
        EXPECT_TRUE(!isCreatedKept || FileTimes::GetCreated(path) == created);
    }
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
}

TEST(FileTimes, ThatAreZeroAreKept)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    constexpr FileTicks before = Utc(2025y / January / 2, 3, 4, 5);
    constexpr FileTicks time = Utc(2001y / July / 19, 18, 45, 3, 1'234'567);
    VyrTests::StampFile(path, before, before);
    EXPECT_EQ(FileTimes::Write(path, {}), 0U);
    EXPECT_EQ(FileTimes::GetModified(path), before);
    EXPECT_EQ(FileTimes::Write(path, {.modified = time}), 0U);
    EXPECT_EQ(FileTimes::GetModified(path), time);
    EXPECT_EQ(FileTimes::GetAccessed(path), before);
    EXPECT_EQ(FileTimes::Write(path, {.accessed = time + 1}), 0U);
    EXPECT_EQ(FileTimes::GetModified(path), time);
    EXPECT_EQ(FileTimes::GetAccessed(path), time + 1);
}

TEST(FileTimes, AreAllWrittenAtOnce)
{
    const ScratchFolder scratch;
    constexpr FileTicks created = Utc(2001y / July / 19, 18, 45, 3, 1'234'567);
    for (const CString& path : {scratch.WriteFile(u"a"), scratch.MakeFolder(u"folder")}) {
        const bool isCreatedKept = VyrTests::KeepsCreationTime(path);
        ASSERT_EQ(FileTimes::Write(path, {.created = created, .modified = created + 1, .accessed = created + 2}), 0U);
        EXPECT_EQ(FileTimes::GetModified(path), created + 1);
        EXPECT_EQ(FileTimes::GetAccessed(path), created + 2);
        if (!isCreatedKept)
            GTEST_SKIP() << "Wine answers that it set the creation time, and drops it";
        EXPECT_EQ(FileTimes::GetCreated(path), created);
    }
}

TEST(FileTimes, OfAReadOnlyFileAreNotWritten)
{
    const ScratchFolder scratch;
    constexpr FileTicks before = Utc(2025y / January / 2, 3, 4, 5);
    constexpr FileTicks time = Utc(2001y / July / 19, 18, 45, 3);
    const CString path = scratch.WriteFile(u"a");
    VyrTests::StampFile(path, before, before);
    VyrTests::SetReadOnly(path, true);
    EXPECT_NE(FileTimes::Write(path, {.created = time, .modified = time, .accessed = time}), 0U);
    EXPECT_EQ(FileTimes::GetModified(path), before);
    EXPECT_EQ(FileTimes::GetAccessed(path), before);
    EXPECT_NE(FileTimes::GetCreated(path), time);
    VyrTests::SetReadOnly(path, false);
}

TEST(FileTimes, AreSetOnTheTargetOfALink)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a");
    if (const std::string reason = VyrTests::MakeLink(file, scratch.Path(u"link")); !reason.empty())
        GTEST_SKIP() << reason;
    constexpr FileTicks time = Utc(2001y / July / 19, 18, 45, 3);
    EXPECT_EQ(FileTimes::Write(scratch.Path(u"link"), {.modified = time}), 0U);
    EXPECT_EQ(FileTimes::GetModified(file), time);
    ASSERT_EQ(VyrTests::MakeLink(scratch.Path(u"missing"), scratch.Path(u"dangling")), "");
    EXPECT_NE(FileTimes::Write(scratch.Path(u"dangling"), {.modified = time}), 0U);
}

TEST(FileTimes, OfAMissingFileAreNotSet)
{
    const ScratchFolder scratch;
    constexpr FileTicks time = Utc(2001y / July / 19, 18, 45, 3);
    for (const CString& path : {scratch.Path(u"missing"), scratch.Path(u"no/way"), CString()}) {
        EXPECT_NE(FileTimes::SetModified(path, time), 0U);
        EXPECT_NE(FileTimes::SetCreated(path, time), 0U);
        EXPECT_NE(FileTimes::Write(path, {.created = time, .modified = time, .accessed = time}), 0U);
        EXPECT_NE(FileTimes::Write(path, {}), 0U);
    }
    EXPECT_FALSE(scratch.Has(u"missing"));
}

TEST_F(FileTimesInBerlin, FromLocalIsTheInverseOfToLocal)
{
    constexpr FileTicks hour = 3600 * ticksPerSecond;
    const FileTicks start = Utc(2024y / January / 1, 0, 20, 7);
    const FileTicks shownTwice = Utc(2024y / October / 27, 1, 20, 7);
    for (int index = 0; index < 366 * 24; ++index) {
        const FileTicks ticks = start + index * hour;
        // The first of the two moments that clocks show as 02:20:07.
        const FileTicks expected = ticks == shownTwice ? ticks - hour : ticks;
        ASSERT_EQ(FileTimes::FromLocal(FileTimes::ToLocal(ticks + 9'999'999)), expected) << index;
    }
    for (const FileTicks ticks : {Utc(100y / January / 3, 1, 2, 3), Utc(1500y / June / 1, 12, 0, 0),
                                  Utc(1899y / December / 29, 6, 0, 1), Utc(9999y / December / 30, 0, 0, 0)})
        EXPECT_EQ(FileTimes::FromLocal(FileTimes::ToLocal(ticks)), ticks);
}

TEST_F(FileTimesInBerlin, FromLocalTakesATimeThatClocksLeaveOutByTheOffsetBefore)
{
    EXPECT_EQ(FileTimes::FromLocal(COleDateTime(2024, 3, 31, 2, 30, 0)), Utc(2024y / March / 31, 1, 30, 0));
}

TEST(FileTimes, FromLocalOfNoDateIsNothing)
{
    for (const auto status : {COleDateTime::invalid, COleDateTime::null}) {
        COleDateTime none;
        none.SetStatus(status);
        EXPECT_EQ(FileTimes::FromLocal(none), std::nullopt);
    }
    for (const double days : {-657435.0, 2958466.0, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
        COleDateTime beyond;
        beyond.m_dt = days;
        EXPECT_EQ(FileTimes::FromLocal(beyond), std::nullopt) << days;
    }
}

TEST_F(FileTimesInBerlin, ToLocalUsesTheOffsetOfTheDateItself)
{
    ExpectLocal(Utc(2024y / January / 15, 12, 0, 0), 2024y / January / 15, 13, 0, 0);
    ExpectLocal(Utc(2024y / July / 15, 12, 0, 0), 2024y / July / 15, 14, 0, 0);
    ExpectLocal(Utc(2023y / December / 31, 23, 30, 0), 2024y / January / 1, 0, 30, 0);
    ExpectLocal(Utc(2024y / June / 30, 22, 0, 1), 2024y / July / 1, 0, 0, 1);
}

TEST_F(FileTimesInBerlin, ToLocalJumpsWhereTheClockDoes)
{
    ExpectLocal(Utc(2024y / March / 31, 0, 59, 59), 2024y / March / 31, 1, 59, 59);
    ExpectLocal(Utc(2024y / March / 31, 1, 0, 0), 2024y / March / 31, 3, 0, 0);
    ExpectLocal(Utc(2024y / October / 27, 0, 59, 59), 2024y / October / 27, 2, 59, 59);
    ExpectLocal(Utc(2024y / October / 27, 1, 0, 0), 2024y / October / 27, 2, 0, 0);
    // The same day again, now that its offsets are cached.
    ExpectLocal(Utc(2024y / March / 31, 0, 0, 0), 2024y / March / 31, 1, 0, 0);
    ExpectLocal(Utc(2024y / March / 31, 23, 0, 0), 2024y / April / 1, 1, 0, 0);
}

TEST_F(FileTimesInBerlin, ToLocalDropsFractions)
{
    ExpectLocal(Utc(2024y / January / 15, 12, 0, 0, 9'999'999), 2024y / January / 15, 13, 0, 0);
    ExpectLocal(Utc(1969y / December / 31, 23, 59, 59, 9'999'999), 1970y / January / 1, 0, 59, 59);
    ExpectLocal(Utc(1960y / January / 15, 12, 0, 0, 1), 1960y / January / 15, 13, 0, 0);
}

TEST_F(FileTimesInBerlin, ToLocalCoversTheCalendar)
{
    ExpectLocal(Utc(9999y / December / 31, 22, 59, 59, 9'999'999), 9999y / December / 31, 23, 59, 59);
    EXPECT_EQ(FileTimes::ToLocal(Utc(9999y / December / 31, 23, 0, 0)).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(FileTimes::ToLocal(Utc(10000y / January / 1, 0, 0, 0)).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(FileTimes::ToLocal(std::numeric_limits<FileTicks>::max()).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(FileTimes::ToLocal(std::numeric_limits<FileTicks>::min()).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(FileTimes::ToLocal(Utc(99y / December / 31, 0, 0, 0)).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(FileTimes::ToLocal(Utc(100y / January / 2, 0, 0, 0)).GetStatus(), COleDateTime::valid);
    EXPECT_EQ(FileTimes::ToLocal(Utc(1500y / June / 1, 12, 0, 0)).GetYear(), 1500);
    EXPECT_EQ(FileTimes::ToLocal(0).GetYear(), 1601);
}

TEST_F(FileTimesInBerlin, ThreadsAgree)
{
    constexpr FileTicks hour = 3600 * ticksPerSecond;
    const auto sumOfYear = [] {
        double sum = 0;
        for (int index = 0; index < 366 * 24; ++index)
            sum += FileTimes::ToLocal(Utc(2024y / January / 1, 0, 0, 0) + index * hour).m_dt;
        return sum;
    };
    std::vector<double> sums(4);
    {
        std::vector<std::jthread> threads;
        for (double& sum : sums)
            threads.emplace_back([&sum, &sumOfYear] { sum = sumOfYear(); });
    }
    for (const double sum : sums)
        EXPECT_EQ(sum, sumOfYear());
}
