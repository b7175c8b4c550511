/// @file
/// For tests: command lines as documents and help texts show them.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string>
#include <vector>

namespace VyrTests {

/// The words of a command line, the program's name first. Quotes are single or double ones.
[[nodiscard]] std::vector<CString> WordsOf(const std::string& commandLine);

} // namespace VyrTests
