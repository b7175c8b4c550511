// For tests: CString as the standard library's path and back, names that are not UTF-8 included.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <filesystem>

namespace VyrTests {

[[nodiscard]] std::filesystem::path ToStdPath(const CString& path);
[[nodiscard]] CString FromStdPath(const std::filesystem::path& path);

} // namespace VyrTests
