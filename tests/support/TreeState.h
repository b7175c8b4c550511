// For tests: all that the system keeps of the files and folders below a folder, by the system's own calls.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <map>
#include <string>

namespace VyrTests {

/// Of each file and folder below `root`, by its path there: kind, permissions or attributes, content, marks of
/// downloads and, of files, times. Asking changes no time. Times of folders are left out: a mark may be a file beside
/// the marked one.
[[nodiscard]] std::map<std::string, std::string> TreeState(const CString& root);

} // namespace VyrTests
