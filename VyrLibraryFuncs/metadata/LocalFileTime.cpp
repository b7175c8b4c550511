#include <VyrLibraryFuncs/metadata/LocalFileTime.h>

#include <VyrPlatform/files/FileTimes.h>

#include <cstdint>

namespace VyrLibraryFuncs {

FILETIME ToFileTime(const COleDateTime& local)
{
    const auto ticks = static_cast<std::uint64_t>(VyrPlatform::FileTimes::FromLocalForWriting(local).value_or(0));
    FILETIME time{};
    time.dwLowDateTime = static_cast<DWORD>(ticks);
    time.dwHighDateTime = static_cast<DWORD>(ticks >> 32);
    return time;
}

} // namespace VyrLibraryFuncs
