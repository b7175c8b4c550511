// Windows has its own registry, and opens no such files.
#include <tests/VyrC/RegistryFiles.h>

namespace VyrCTests {

RegistryFiles MakeRegistryFiles(const VyrTests::ScratchFolder& /*folder*/)
{
    return {};
}

} // namespace VyrCTests
