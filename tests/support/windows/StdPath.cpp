// On Windows the standard library's paths are wide texts.
#include <tests/support/StdPath.h>

#include <VyrPlatform/text/WindowsCString.h>

namespace VyrTests {

std::filesystem::path ToStdPath(const CString& path)
{
    return std::wstring(VyrPlatform::ToWide(path), static_cast<std::size_t>(path.GetLength()));
}

CString FromStdPath(const std::filesystem::path& path)
{
    return VyrPlatform::FromWide(path.native());
}

} // namespace VyrTests
