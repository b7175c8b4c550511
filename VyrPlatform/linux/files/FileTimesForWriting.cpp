// On Linux a file time is written with the offset of its own date, as it is read.
#include <VyrPlatform/files/FileTimes.h>

namespace VyrPlatform::FileTimes {

COleDateTime ToLocalForWriting(FileTicks ticks)
{
    return ToLocal(ticks);
}

std::optional<FileTicks> FromLocalForWriting(const COleDateTime& local)
{
    constexpr int firstYear = 1601;
    const std::optional<FileTicks> ticks = FromLocal(local);
    if (local.GetYear() < firstYear || ticks.value_or(0) <= 0)
        return std::nullopt;
    return ticks;
}

} // namespace VyrPlatform::FileTimes
