// On Linux our own code writes a document anew.
#include <tests/support/RemovedBytes.h>

namespace VyrTests {

bool LeavesRemovedBytes() noexcept
{
    return false;
}

} // namespace VyrTests
