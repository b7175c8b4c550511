/// @file
/// Errors in the arguments, and messages for the system's error codes.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace VyrHost::Text {

/// The arguments are wrong. Its text (UTF-8) says what to change; the program ends with ExitCode::usage.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Throws a UsageError for the `value` of `option`.
[[noreturn]] void RefuseValue(const std::string& option, std::u16string_view value, const std::string& reason);

/// The system's message for `code`, or the number where it has none. For 0, which no system call returns: that a folder
/// is no longer at its path.
[[nodiscard]] CString ErrorText(std::uint32_t code);

} // namespace VyrHost::Text
