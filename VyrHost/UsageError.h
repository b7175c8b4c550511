/// @file
/// What is wrong with a call, found before anything is touched.
#pragma once

#include <stdexcept>

namespace VyrHost {

/// The call cannot be carried out as it stands. Its text (UTF-8) says what to change; the program ends with
/// ExitCode::Usage.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace VyrHost
