/// @file
/// A file's three times.
#pragma once

#include <VyrPlatform/COleDateTime.h>
#include <VyrPlatform/CString.h>
#include <VyrPlatform/Export.h>

#include <cstdint>
#include <optional>

namespace VyrPlatform {

/// A count of 100-nanosecond intervals since 1 January 1601 UTC (the value of a FILETIME).
using FileTicks = std::int64_t;

} // namespace VyrPlatform

namespace VyrPlatform::FileTimes {

/// The last-write time of the file or folder at `path` (a link is followed); nothing when there is none.
[[nodiscard]] VYR_PLATFORM_API std::optional<FileTicks> GetModified(const CString& path);
/// The creation time. On Linux it is, in this order: what a Windows file system or Samba keeps in the file's extended
/// attributes, the birth time, the last-write time.
[[nodiscard]] VYR_PLATFORM_API std::optional<FileTicks> GetCreated(const CString& path);
/// The last-access time.
[[nodiscard]] VYR_PLATFORM_API std::optional<FileTicks> GetAccessed(const CString& path);

/// `ticks` as local time, with the offset that holds at its own date; fractions of a second are dropped.
/// @return invalid when it is out of the calendar's range.
[[nodiscard]] VYR_PLATFORM_API COleDateTime ToLocal(FileTicks ticks);

/// `ticks` as local time by the inverse of the system's own conversion from local calendar fields to a file time: what
/// is going to be written back is read with it, so that it becomes the same instant again. On Windows that pair uses
/// today's offset; on Linux this is ToLocal.
[[nodiscard]] VYR_PLATFORM_API COleDateTime ToLocalForWriting(FileTicks ticks);

/// Makes ToLocal read the time zone anew. For a host that lives on while its user's time zone changes, and for tests.
VYR_PLATFORM_API void FollowTimeZone();

} // namespace VyrPlatform::FileTimes
