/// @file
/// What the help says of the tokens of templates.
#pragma once

#include <string>

namespace VyrHost::Cli {

/// The tokens of --name with what they stand for, their changes and counters, in lines of at most 80 columns.
[[nodiscard]] std::string TokensTopic();

} // namespace VyrHost::Cli
