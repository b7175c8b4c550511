// File times that are going to be written back, on Windows.
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/files/FileTimes.h>

namespace VyrPlatform::FileTimes {

COleDateTime ToLocalForWriting(FileTicks ticks)
{
    const ULARGE_INTEGER bits{.QuadPart = static_cast<std::uint64_t>(ticks)};
    const FILETIME time{bits.LowPart, bits.HighPart};
    FILETIME local;
    SYSTEMTIME fields;
    // The pair of these is SystemTimeToFileTime and LocalFileTimeToFileTime, which use today's offset too.
    if (::FileTimeToLocalFileTime(&time, &local) && ::FileTimeToSystemTime(&local, &fields))
        return COleDateTime(fields);
    COleDateTime invalid;
    invalid.SetStatus(COleDateTime::invalid);
    return invalid;
}

} // namespace VyrPlatform::FileTimes
