// File times on Linux: every zone compared with the C library, and times that few file systems can represent.
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FileTimes.h>
#include <tests/support/Describe.h>
#include <tests/support/FileMoments.h>
#include <tests/support/TimeZone.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace FileTimes = VyrPlatform::FileTimes;
using VyrPlatform::FileTicks;
using VyrTests::TicksOfUnixTime;

namespace {

std::string ByTheCLibrary(std::time_t time)
{
    std::tm fields;
    char text[80];
    localtime_r(&time, &fields);
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", fields.tm_year + 1900, fields.tm_mon + 1,
                  fields.tm_mday, fields.tm_hour, fields.tm_min, fields.tm_sec);
    return text;
}

/// A file in memory, whose times have 64 bits; empty where the system has no such file system.
class FileInMemory
{
public:
    FileInMemory()
    {
        constexpr long tmpfs = 0x01021994;
        struct statfs status;
        if (statfs("/dev/shm", &status) != 0 || status.f_type != tmpfs)
            return;
        char name[] = "/dev/shm/vyr-test-XXXXXX";
        const int descriptor = mkstemp(name);
        if (descriptor >= 0)
            m_name = name;
        close(descriptor);
    }
    FileInMemory(const FileInMemory&) = delete;
    FileInMemory& operator=(const FileInMemory&) = delete;
    ~FileInMemory() { unlink(m_name.c_str()); }

    [[nodiscard]] const std::string& Name() const noexcept { return m_name; }
    [[nodiscard]] CString Path() const { return {std::u16string(m_name.begin(), m_name.end())}; }

private:
    std::string m_name;
};

} // namespace

TEST(FileTimesRange, ToLocalAgreesWithTheCLibraryInEveryKindOfZone)
{
    // Half hours, offsets of odd seconds, days that were left out, summer times of half an hour, of the south, and of a
    // few weeks around a month.
    for (const char* const name : {"UTC", "Europe/Berlin", "Europe/Amsterdam", "America/New_York", "Asia/Kolkata",
                                   "Asia/Kathmandu", "Pacific/Apia", "Australia/Lord_Howe", "America/Santiago",
                                   "Africa/Casablanca", "Africa/Monrovia", "America/St_Johns", "Africa/Freetown"}) {
        const VyrTests::TimeZone zone(name);
        // Not a divisor of a day, so that all hours come along; from 1850 to 2060.
        constexpr std::time_t step = 5 * 3600 + 1234;
        for (std::time_t time = -3'786'912'000; time < 2'840'140'800; time += step) {
            const std::string local = VyrTests::Describe(FileTimes::ToLocal(TicksOfUnixTime(time, 9'999'999)));
            ASSERT_EQ(local, ByTheCLibrary(time)) << name << ' ' << time;
        }
    }
}

TEST(FileTimesRange, ToLocalAgreesWithTheCLibraryInEverySecondOfAChange)
{
    // The last change that was not on a quarter of an hour: Monrovia, 7 January 1972, 00:44:30 UTC.
    const VyrTests::TimeZone zone("Africa/Monrovia");
    constexpr std::time_t change = 63'593'070;
    for (std::time_t time = change - 1000; time < change + 1000; ++time)
        ASSERT_EQ(VyrTests::Describe(FileTimes::ToLocal(TicksOfUnixTime(time))), ByTheCLibrary(time)) << time;
}

TEST(FileTimesRange, ToLocalFollowsTheTimeZone)
{
    constexpr FileTicks noon = TicksOfUnixTime(1'704'110'400);
    const VyrTests::TimeZone berlin("Europe/Berlin");
    EXPECT_EQ(VyrTests::Describe(FileTimes::ToLocal(noon)), "2024-01-01 13:00:00");
    {
        const VyrTests::TimeZone tokyo("Asia/Tokyo");
        EXPECT_EQ(VyrTests::Describe(FileTimes::ToLocal(noon)), "2024-01-01 21:00:00");
    }
    EXPECT_EQ(VyrTests::Describe(FileTimes::ToLocal(noon)), "2024-01-01 13:00:00");
}

TEST(FileTimesRange, YearsFromLongAgoToTheCalendarsEndAreRead)
{
    const FileInMemory file;
    if (file.Name().empty())
        GTEST_SKIP() << "/dev/shm is no file system in memory, and others do not hold such times";
    const VyrTests::TimeZone zone("UTC");
    const std::pair<std::time_t, const char*> times[] = {
        {253'402'300'799, "9999-12-31 23:59:59"}, {253'402'300'800, "invalid"},
        {-11'644'473'600, "1601-01-01 00:00:00"}, {-11'644'473'601, "1600-12-31 23:59:59"},
        {-59'011'459'200, "0100-01-01 00:00:00"}, {-59'011'459'201, "invalid"},
        {1'000'000'000'000'000'000, "invalid"},   {-1'000'000'000'000'000'000, "invalid"},
    };
    for (const auto& [time, expected] : times) {
        const timespec both[] = {{time, 999'999'999}, {time, 999'999'999}};
        ASSERT_EQ(utimensat(AT_FDCWD, file.Name().c_str(), both, 0), 0);
        const std::optional<FileTicks> modified = FileTimes::GetModified(file.Path());
        ASSERT_TRUE(modified);
        EXPECT_EQ(VyrTests::Describe(FileTimes::ToLocal(*modified)), expected) << time;
        EXPECT_EQ(VyrPlatform::FileSystem::Query(file.Path()).modified, *modified);
    }
}
