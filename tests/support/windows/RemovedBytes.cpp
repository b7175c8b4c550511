// The system's structured storage writes a property set to other sectors and does not clear the old ones.
#include <tests/support/RemovedBytes.h>

namespace VyrTests {

bool LeavesRemovedBytes() noexcept
{
    return true;
}

} // namespace VyrTests
