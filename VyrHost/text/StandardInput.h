/// @file
/// The standard input as commands read it.
#pragma once

#include <functional>
#include <string_view>

namespace VyrHost::Text {

/// Calls `use` with one piece of the standard input after the other, to its end.
/// @throws UsageError where it cannot be read.
void ReadStandardInput(const std::function<void(std::string_view piece)>& use);

} // namespace VyrHost::Text
