// On Linux the standard library's paths are bytes.
#include <tests/support/StdPath.h>

#include <VyrPlatform/text/Encoding.h>

namespace VyrTests {

std::filesystem::path ToStdPath(const CString& path)
{
    return VyrPlatform::Encoding::ToNameBytes(path);
}

CString FromStdPath(const std::filesystem::path& path)
{
    return VyrPlatform::Encoding::FromNameBytes(path.native());
}

} // namespace VyrTests
