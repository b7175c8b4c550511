// Windows has only those that are registered.
#include <tests/support/PackageHandlers.h>

namespace VyrTests {

bool HasPackageHandlers() noexcept
{
    return false;
}

} // namespace VyrTests
