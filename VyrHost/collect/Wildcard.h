/// @file
/// Wildcards in names, for shells that leave them to the program.
#pragma once

#include <string_view>

namespace VyrHost::Collect {

/// Whether `pattern` has a "*" or a "?".
[[nodiscard]] bool IsPattern(std::u16string_view pattern);

/// Whether the whole of `name` is matched by `pattern`: "*" stands for any text, "?" for any one code unit.
[[nodiscard]] bool MatchesPattern(std::u16string_view pattern, std::u16string_view name);

} // namespace VyrHost::Collect
