// Symbolic links on Linux.
#include <tests/support/Links.h>
#include <tests/support/StdPath.h>

namespace VyrTests {

std::string MakeLink(const CString& target, const CString& link)
{
    std::filesystem::create_symlink(ToStdPath(target), ToStdPath(link));
    return {};
}

} // namespace VyrTests
