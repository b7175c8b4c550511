/// @file
/// What is wrong with a call, found before anything is touched.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace VyrHost::Text {

/// The call cannot be carried out as it stands. Its text (UTF-8) says what to change; the program ends with
/// ExitCode::Usage.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Throws a UsageError for the `value` that was given with `option`.
[[noreturn]] void RefuseValue(const std::string& option, std::u16string_view value, const std::string& reason);

} // namespace VyrHost::Text
