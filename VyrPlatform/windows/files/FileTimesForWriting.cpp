// On Windows a local time is written as a file time with today's offset.
#include <VyrPlatform/files/FileTimes.h>

#include "FileStatus.h"

namespace VyrPlatform::FileTimes {

COleDateTime ToLocalForWriting(FileTicks ticks)
{
    const FILETIME time = ToFileTime(ticks);
    FILETIME local;
    SYSTEMTIME fields;
    // These are the inverses of SystemTimeToFileTime and LocalFileTimeToFileTime, which use today's offset, too.
    if (::FileTimeToLocalFileTime(&time, &local) && ::FileTimeToSystemTime(&local, &fields))
        return COleDateTime(fields);
    COleDateTime invalid;
    invalid.SetStatus(COleDateTime::invalid);
    return invalid;
}

std::optional<FileTicks> FromLocalForWriting(const COleDateTime& local)
{
    SYSTEMTIME fields;
    FILETIME localTime;
    FILETIME time;
    // The system's calendar begins in 1601.
    if (!local.GetAsSystemTime(fields) || !::SystemTimeToFileTime(&fields, &localTime) ||
        !::LocalFileTimeToFileTime(&localTime, &time) || ToTicks(time) <= 0)
        return std::nullopt;
    return ToTicks(time);
}

} // namespace VyrPlatform::FileTimes
