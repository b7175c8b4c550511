/// @file
/// Reads and writes the three times of a file, and converts them to local time and back.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <cstdint>
#include <optional>

namespace VyrPlatform {

/// A count of 100-nanosecond intervals since 1 January 1601 UTC (the value of a FILETIME).
using FileTicks = std::int64_t;

} // namespace VyrPlatform

namespace VyrPlatform::FileTimes {

/// The last-write time of the file or folder at `path` (a link is followed); nothing when there is none.
[[nodiscard]] VYR_PLATFORM_API std::optional<FileTicks> GetModified(const CString& path);
/// The creation time. On Linux it is the first of these that exists: the value that a Windows file system or Samba
/// keeps in the file's extended attributes, the birth time, the last-write time. Nothing where the user may not read
/// what Samba keeps.
[[nodiscard]] VYR_PLATFORM_API std::optional<FileTicks> GetCreated(const CString& path);
/// The last-access time.
[[nodiscard]] VYR_PLATFORM_API std::optional<FileTicks> GetAccessed(const CString& path);

/// Sets the last-write time of the file or folder at `path` (a link is followed).
/// @return 0 when it was set, else the system's error code.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t SetModified(const CString& path, FileTicks modified);
/// Sets the creation time. On Linux it is written to where GetCreated reads it: into Samba's attribute, whose other
/// fields are kept, or through an NTFS driver; where there is neither, Samba's attribute is created.
/// @param created  more than 0.
/// @return 0 when it was set, else the system's error code: operation not supported where the file system keeps no
/// creation time. Some systems return 0 all the same.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t SetCreated(const CString& path, FileTicks created);

/// Times to be written; 0 keeps a time.
struct NewTimes
{
    FileTicks created = 0;
    FileTicks modified = 0;
    FileTicks accessed = 0;
};

/// Writes `times` to the file or folder at `path` (a link is followed), all or none. A read-only file
/// (FileAttributes::IsReadOnly) is refused for every user, as a program that opens it for reading and writing would be.
///
/// On Linux the creation time is kept where SetCreated keeps it; the other two are set in one call, to 100 nanoseconds
/// where the file system is that precise.
/// @return 0 when all were written, else the system's error code: among them operation not supported where the file
/// system keeps no creation time, and on Linux ERANGE where it cannot represent a time.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t Write(const CString& path, const NewTimes& times);

/// `ticks` as local time, with the offset of its own date; fractions of a second are dropped.
/// @return invalid when it is out of the calendar's range.
[[nodiscard]] VYR_PLATFORM_API COleDateTime ToLocal(FileTicks ticks);

/// The instant at which clocks show `local`: the inverse of ToLocal, to the second. Of two such instants (where clocks
/// are turned back) it is the first; for a time that clocks skip, it is computed with the offset before.
/// @return nothing when `local` is not valid or out of the calendar's range.
[[nodiscard]] VYR_PLATFORM_API std::optional<FileTicks> FromLocal(const COleDateTime& local);

/// `ticks` as local time, by the inverse of the system's own conversion from local calendar fields to a file time:
/// reading with it and writing back gives the same instant. On Windows both conversions use today's offset; on Linux
/// this is ToLocal.
[[nodiscard]] VYR_PLATFORM_API COleDateTime ToLocalForWriting(FileTicks ticks);

/// The file time that the system's own conversion gives for local calendar fields: the inverse of ToLocalForWriting, to
/// the second. On Windows it uses today's offset; on Linux this is FromLocal.
/// @return nothing when `local` is not valid or before 1601, also when only its UTC value is; else more than 0.
[[nodiscard]] VYR_PLATFORM_API std::optional<FileTicks> FromLocalForWriting(const COleDateTime& local);

/// Makes ToLocal read the time zone again. For hosts in which the user can change the time zone, and for tests.
VYR_PLATFORM_API void FollowTimeZone();

} // namespace VyrPlatform::FileTimes
