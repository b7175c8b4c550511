// File times that are going to be written back, on Linux.
#include <VyrPlatform/files/FileTimes.h>

namespace VyrPlatform::FileTimes {

COleDateTime ToLocalForWriting(FileTicks ticks)
{
    return ToLocal(ticks);
}

} // namespace VyrPlatform::FileTimes
