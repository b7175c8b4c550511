// For tests: sets file times, and converts local calendar fields to file times with the system's own conversion.
#pragma once

#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

namespace VyrTests {

/// A Unix time plus a number of 100-nanosecond intervals.
[[nodiscard]] constexpr VyrPlatform::FileTicks TicksOfUnixTime(std::int64_t seconds, std::int64_t fraction = 0)
{
    constexpr std::int64_t secondsFrom1601To1970 = 11'644'473'600;
    return (seconds + secondsFrom1601To1970) * 10'000'000 + fraction;
}

/// Sets the last-write and the last-access time of the file or folder at `path`; a failure fails the test.
void StampFile(const CString& path, VyrPlatform::FileTicks modified, VyrPlatform::FileTicks accessed);

/// The file time that writing the calendar fields of `local` to a file makes of them.
[[nodiscard]] VyrPlatform::FileTicks ToFileTicks(const COleDateTime& local);

/// Sets the creation time of the file or folder at `path` to 2001.
/// @return whether it stands there now: Wine answers that it set one, and drops it.
[[nodiscard]] inline bool KeepsCreationTime(const CString& path)
{
    constexpr VyrPlatform::FileTicks created = TicksOfUnixTime(1'000'000'000);
    return VyrPlatform::FileTimes::SetCreated(path, created) == 0 &&
           VyrPlatform::FileTimes::GetCreated(path) == created;
}

} // namespace VyrTests
