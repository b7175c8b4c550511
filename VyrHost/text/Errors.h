/// @file
/// What is wrong with a call, and what a system's error code means, for people.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace VyrHost::Text {

/// The call cannot be carried out as it stands. Its text (UTF-8) says what to change; the program ends with
/// ExitCode::usage.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Throws a UsageError for the `value` that was given with `option`.
[[noreturn]] void RefuseValue(const std::string& option, std::u16string_view value, const std::string& reason);

/// The system's message for `code`, or the bare number where it has none; for 0, which no call gives, that a folder is
/// not where it was.
[[nodiscard]] CString ErrorText(std::uint32_t code);

} // namespace VyrHost::Text
