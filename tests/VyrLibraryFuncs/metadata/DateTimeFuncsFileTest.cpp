// A file's date-times: chosen, combined, written.
#include <VyrLibraryFuncs/metadata/DateTimeFuncs.h>

#include <tests/support/DebugCapture.h>
#include <tests/support/Describe.h>
#include <tests/support/FileMoments.h>
#include <tests/support/FileState.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/TimeZone.h>

#include <VyrPlatform/files/FileTimes.h>

#include <gtest/gtest.h>

using VyrLibraryFuncs::DateTimeFuncs;
using VyrPlatform::FileTicks;
using VyrTests::Describe;
using VyrTests::ScratchFolder;
using VyrTests::TicksOfUnixTime;
namespace FileTimes = VyrPlatform::FileTimes;

namespace {

/// 19 July 2024 and later, UTC, with a fraction.
constexpr FileTicks modifiedTime = TicksOfUnixTime(1'721'400'303, 1'234'500);
constexpr FileTicks accessedTime = TicksOfUnixTime(1'735'787'045, 9'999'900);
constexpr FileTicks ticksPerSecond = 10'000'000;

FileTicks Ticks(const FILETIME& time)
{
    return static_cast<FileTicks>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime);
}

FILETIME Time(FileTicks ticks)
{
    FILETIME time{};
    time.dwLowDateTime = static_cast<DWORD>(ticks & 0xFFFF'FFFF);
    time.dwHighDateTime = static_cast<DWORD>(ticks >> 32);
    return time;
}

FileTicks Selected(const CString& path, int target)
{
    return Ticks(DateTimeFuncs::GetSelectedFileDateTime(path, target, 1));
}

std::string Modified(const CString& path, const COleDateTime& date, const COleDateTime& time, int mode)
{
    const FileTicks ticks = Ticks(DateTimeFuncs::GetModifiedFileDateTime(path, 1, date, time, mode));
    return ticks == 0 ? "none" : Describe(FileTimes::ToLocalForWriting(ticks));
}

/// Selects the time of a file for every quarter of an hour around the changes of the clocks in 2024.
void ExpectEveryMomentComesBack(const CString& path)
{
    // 10 March, 31 March, 7 April, 6 October, 27 October, 3 November 2024, 00:00 UTC, each less and more than a day.
    for (const std::int64_t day : {19'792, 19'813, 19'820, 20'002, 20'023, 20'030}) {
        for (std::int64_t quarter = -120; quarter < 120; ++quarter) {
            const FileTicks ticks = TicksOfUnixTime(day * 86'400 + quarter * 900 + 7, 1'234'500);
            VyrTests::StampFile(path, ticks, ticks);
            const auto shownBefore = [ticks](std::int64_t seconds) {
                return Describe(FileTimes::ToLocalForWriting(ticks - seconds * ticksPerSecond));
            };
            // Clocks showed this before, since they were turned back by an hour, or by half of one.
            if (shownBefore(0) == shownBefore(3600) || shownBefore(0) == shownBefore(1800))
                continue;
            ASSERT_EQ(Selected(path, 0), ticks / ticksPerSecond * ticksPerSecond) << shownBefore(0);
        }
    }
}

} // namespace

TEST(FileDateTime, IsChosenByItsTarget)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    VyrTests::StampFile(path, modifiedTime, accessedTime);
    EXPECT_EQ(Selected(path, 0), modifiedTime / ticksPerSecond * ticksPerSecond);
    EXPECT_EQ(Selected(path, 2), accessedTime / ticksPerSecond * ticksPerSecond);
    const std::optional<FileTicks> created = FileTimes::GetCreated(path);
    ASSERT_TRUE(created);
    EXPECT_EQ(Selected(path, 1), *created / ticksPerSecond * ticksPerSecond);
    CString text = DateTimeFuncs::GetOtherDateTime(path, 0);
    const std::string shown = Describe(FileTimes::ToLocalForWriting(modifiedTime));
    text.Replace(u"/", u"-");
    EXPECT_EQ(VyrPlatform::Encoding::ToUtf8(text), shown);
}

TEST(FileDateTime, IsThePicturesUnderEveryOtherTarget)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(
        u"a.jpg", VyrTests::BuildJpeg(VyrTests::PictureFacts{.dateTimeOriginal = "2024:06:21 18:03:57"}));
    VyrTests::StampFile(path, modifiedTime, accessedTime);
    for (const int target : {3, 7, -1, 4}) {
        EXPECT_EQ(DateTimeFuncs::GetOtherDateTime(path, target), u"2024/06/21 18:03:57") << target;
        EXPECT_EQ(Selected(path, target), VyrTests::ToFileTicks(COleDateTime(2024, 6, 21, 18, 3, 57))) << target;
    }
}

TEST(FileDateTime, IsZeroForAMissingDateTime)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    EXPECT_EQ(Selected(path, 3), 0);
    EXPECT_EQ(DateTimeFuncs::GetOtherDateTime(path, 3), u"");
    for (int target = -1; target < 5; ++target) {
        EXPECT_EQ(Selected(scratch.Path(u"missing"), target), 0);
        EXPECT_EQ(DateTimeFuncs::GetOtherDateTime(scratch.Path(u"missing"), target), u"");
        EXPECT_EQ(Ticks(DateTimeFuncs::GetSelectedFileDateTime(path, target, 0)), 0);
    }
}

TEST(FileDateTime, WrittenAndReadAgainIsTheSameSecondInTheMachinesOwnZone)
{
    const ScratchFolder scratch;
    ExpectEveryMomentComesBack(scratch.WriteFile(u"a"));
}

TEST(FileDateTime, WrittenAndReadAgainIsTheSameSecondInFiveZones)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    std::string whyNot;
    int zones = 0;
    for (const char* const name :
         {"Europe/Berlin", "America/New_York", "Australia/Lord_Howe", "Asia/Kolkata", "Pacific/Apia"}) {
        const VyrTests::TimeZone zone(name);
        if (!zone.IsSet()) {
            whyNot = zone.WhyNot();
            continue;
        }
        ++zones;
        ExpectEveryMomentComesBack(path);
    }
    if (zones == 0)
        GTEST_SKIP() << whyNot;
}

TEST(PutTogetherDateTime, TakesItsPartsByTheMode)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    VyrTests::StampFile(path, modifiedTime, accessedTime);
    const COleDateTime date(2020, 2, 29, 1, 2, 3);
    const COleDateTime time(1999, 9, 9, 14, 15, 16);
    const std::string file = Describe(FileTimes::ToLocalForWriting(modifiedTime));
    EXPECT_EQ(Modified(path, date, time, 0), "2020-02-29 14:15:16");
    EXPECT_EQ(Modified(path, date, time, 1), "2020-02-29" + file.substr(10));
    EXPECT_EQ(Modified(path, date, time, 2), file.substr(0, 10) + " 14:15:16");
    EXPECT_EQ(Modified(path, date, time, 3), file);
    EXPECT_EQ(Modified(path, date, time, 9), "2020-02-29 14:15:16");
}

TEST(PutTogetherDateTime, IsZeroWhereAPartIsMissing)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const COleDateTime date(2020, 2, 29, 1, 2, 3);
    COleDateTime invalid = date;
    invalid.SetStatus(COleDateTime::invalid);
    COleDateTime null = date;
    null.SetStatus(COleDateTime::null);
    EXPECT_EQ(Modified(path, invalid, date, 0), "none");
    EXPECT_EQ(Modified(path, date, null, 0), "none");
    EXPECT_NE(Modified(path, date, null, 1), "none") << "the time of day is the file's";
    EXPECT_EQ(Modified(scratch.Path(u"missing"), date, date, 1), "none");
    EXPECT_EQ(Modified(scratch.Path(u"missing"), date, date, 0), "2020-02-29 01:02:03")
        << "nothing is asked of the file";
    EXPECT_EQ(Modified(path, COleDateTime(1600, 12, 31, 0, 0, 0), date, 0), "none");
    EXPECT_EQ(Ticks(DateTimeFuncs::GetModifiedFileDateTime(path, 0, date, date, 0)), 0);
}

TEST(SetFileDateTime, WritesEachTimeAlone)
{
    const ScratchFolder scratch;
    for (const CString& path : {scratch.WriteFile(u"a", "content"), scratch.MakeFolder(u"folder")}) {
        const bool isCreatedKept = VyrTests::KeepsCreationTime(path);
        VyrTests::StampFile(path, modifiedTime, accessedTime);
        const std::optional<FileTicks> created = FileTimes::GetCreated(path);
        const FILETIME first = Time(TicksOfUnixTime(1'000'000'000, 1'234'567));
        EXPECT_NE(DateTimeFuncs::SetModifiedFileDateTime(path, nullptr, &first, nullptr), 0);
        EXPECT_EQ(FileTimes::GetModified(path), Ticks(first));
        EXPECT_EQ(FileTimes::GetAccessed(path), accessedTime);
        const FILETIME second = Time(TicksOfUnixTime(1'100'000'000, 7));
        EXPECT_NE(DateTimeFuncs::SetModifiedFileDateTime(path, nullptr, nullptr, &second), 0);
        EXPECT_EQ(FileTimes::GetModified(path), Ticks(first));
        EXPECT_EQ(FileTimes::GetAccessed(path), Ticks(second));
        const FILETIME zero{};
        EXPECT_NE(DateTimeFuncs::SetModifiedFileDateTime(path, &zero, &zero, &zero), 0);
        EXPECT_NE(DateTimeFuncs::SetModifiedFileDateTime(path, nullptr, nullptr, nullptr), 0);
        EXPECT_EQ(FileTimes::GetModified(path), Ticks(first));
        EXPECT_EQ(FileTimes::GetAccessed(path), Ticks(second));
        EXPECT_TRUE(!isCreatedKept || FileTimes::GetCreated(path) == created);
    }
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
}

TEST(SetFileDateTime, WritesTheCreationTime)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const bool isCreatedKept = VyrTests::KeepsCreationTime(path);
    VyrTests::StampFile(path, modifiedTime, accessedTime);
    const FILETIME created = Time(TicksOfUnixTime(1'100'000'000, 1'234'567));
    EXPECT_NE(DateTimeFuncs::SetModifiedFileDateTime(path, &created, nullptr, nullptr), 0);
    EXPECT_EQ(FileTimes::GetModified(path), modifiedTime);
    EXPECT_EQ(FileTimes::GetAccessed(path), accessedTime);
    if (!isCreatedKept)
        GTEST_SKIP() << "Wine answers that it set the creation time, and drops it";
    EXPECT_EQ(FileTimes::GetCreated(path), Ticks(created));
}

TEST(SetFileDateTime, OfAMissingFileFailsWithOneLogLine)
{
    const ScratchFolder scratch;
    const CString path = scratch.Path(u"missing");
    const FILETIME time = Time(modifiedTime);
    const VyrTests::DebugCapture capture;
    EXPECT_EQ(DateTimeFuncs::SetModifiedFileDateTime(path, &time, &time, &time), 0);
    ASSERT_EQ(capture.Texts().size(), 1U);
    const std::string line = VyrPlatform::Encoding::ToUtf8(capture.Texts()[0]);
    const std::string start = "\",\"2\",\"VyrLibraryFuncs::DateTimeFuncs::SetModifiedFileDateTime " +
                              VyrPlatform::Encoding::ToUtf8(path) + " ";
    const std::size_t at = line.find(start);
    ASSERT_NE(at, std::string::npos) << line;
    EXPECT_GT(line.size(), at + start.size() + 4) << "the system's text follows: " << line;
    EXPECT_TRUE(line.ends_with("\"\r\n"));
    EXPECT_FALSE(scratch.Has(u"missing"));
}

TEST(SetFileDateTime, OfAReadOnlyFileFailsWithOneLine)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    VyrTests::StampFile(path, modifiedTime, accessedTime);
    VyrTests::SetReadOnly(path, true);
    const FILETIME time = Time(TicksOfUnixTime(1'000'000'000));
    {
        const VyrTests::DebugCapture capture;
        EXPECT_EQ(DateTimeFuncs::SetModifiedFileDateTime(path, &time, &time, &time), 0);
        EXPECT_EQ(capture.Texts().size(), 1U);
    }
    EXPECT_EQ(FileTimes::GetModified(path), modifiedTime);
    EXPECT_EQ(FileTimes::GetAccessed(path), accessedTime);
    VyrTests::SetReadOnly(path, false);
}

TEST(SetFileDateTime, SuccessWritesNoLine)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const FILETIME time = Time(modifiedTime);
    const VyrTests::DebugCapture capture;
    EXPECT_NE(DateTimeFuncs::SetModifiedFileDateTime(path, nullptr, &time, &time), 0);
    EXPECT_TRUE(capture.Texts().empty());
}
