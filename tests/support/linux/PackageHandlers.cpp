// The library has its own.
#include <tests/support/PackageHandlers.h>

namespace VyrTests {

bool HasPackageHandlers() noexcept
{
    return true;
}

} // namespace VyrTests
