// On Linux the system tells in a file how large the process has been.
#include <tests/support/ProcessMemory.h>

#include <fstream>
#include <stdexcept>
#include <string>

namespace VyrTests {

std::uint64_t PeakMemory()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmPeak:"))
            return std::stoull(line.substr(7)) * 1024;
    throw std::runtime_error("/proc/self/status does not tell the size of the process");
}

} // namespace VyrTests
