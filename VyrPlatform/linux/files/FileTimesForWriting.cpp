// On Linux file times are written with the offset of their own date, as they are read.
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
