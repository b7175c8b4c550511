// On Windows memory counts from when it is committed.
#include <tests/support/ProcessMemory.h>

#include <algorithm>
#include <stdexcept>
#include <windows.h>
// After windows.h, which it needs.
#include <psapi.h>

namespace VyrTests {

std::uint64_t PeakMemory()
{
    PROCESS_MEMORY_COUNTERS counters;
    if (!GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters)))
        throw std::runtime_error("the system does not tell the size of the process");
    // Wine tells the peak of the working set alone.
    return std::max(counters.PeakPagefileUsage, counters.PeakWorkingSetSize);
}

} // namespace VyrTests
