// For tests: the removal of whole folders.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string>

namespace VyrTests {

/// Removes the folder `path` with all that it holds, even what may not be written or read. No link is followed.
/// @return why that failed; empty when it is gone.
[[nodiscard]] std::string RemoveTree(const CString& path);

} // namespace VyrTests
