// File times through utimensat, calendar fields through mktime.
#include <tests/support/FileMoments.h>

#include <VyrPlatform/text/Encoding.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>

namespace VyrTests {

namespace {

timespec ToTimespec(VyrPlatform::FileTicks ticks)
{
    const VyrPlatform::FileTicks sinceEpoch = ticks - TicksOfUnixTime(0);
    // Before 1970 the nanoseconds still count forward.
    const std::int64_t fraction = ((sinceEpoch % 10'000'000) + 10'000'000) % 10'000'000;
    return {(sinceEpoch - fraction) / 10'000'000, fraction * 100};
}

} // namespace

void StampFile(const CString& path, VyrPlatform::FileTicks modified, VyrPlatform::FileTicks accessed)
{
    const timespec times[] = {ToTimespec(accessed), ToTimespec(modified)};
    ASSERT_EQ(::utimensat(AT_FDCWD, VyrPlatform::Encoding::ToNameBytes(path).c_str(), times, 0), 0)
        << std::strerror(errno);
}

VyrPlatform::FileTicks ToFileTicks(const COleDateTime& local)
{
    std::tm fields{};
    fields.tm_year = local.GetYear() - 1900;
    fields.tm_mon = local.GetMonth() - 1;
    fields.tm_mday = local.GetDay();
    fields.tm_hour = local.GetHour();
    fields.tm_min = local.GetMinute();
    fields.tm_sec = local.GetSecond();
    fields.tm_isdst = -1;
    return TicksOfUnixTime(std::mktime(&fields));
}

} // namespace VyrTests
