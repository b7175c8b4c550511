// For tests: symbolic links.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string>

namespace VyrTests {

/// Makes the symbolic link `link` to the file or folder `target`, which need not be there.
/// @return why this system cannot; empty when it was made.
[[nodiscard]] std::string MakeLink(const CString& target, const CString& link);

} // namespace VyrTests
