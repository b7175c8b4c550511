// For tests: the removal of whole folders.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string>

namespace VyrTests {

/// Removes the folder `path` with its contents, also entries that cannot be read or written. Follows no link.
/// @return why that failed; empty when it is gone.
[[nodiscard]] std::string RemoveTree(const CString& path);

} // namespace VyrTests
