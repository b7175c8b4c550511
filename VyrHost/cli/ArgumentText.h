/// @file
/// Arguments on their way through the parser of the command line, which works on bytes.
#pragma once

#include <VyrPlatform/CString.h>

#include <string>

namespace VyrHost {

/// The bytes of `argument`, such that the parser takes every one for a plain text (it would read "[a,b]" as two).
[[nodiscard]] std::string ToParser(const CString& argument);
/// The argument again.
[[nodiscard]] CString FromParser(const std::string& bytes);

} // namespace VyrHost
