/// @file
/// What is said of a pattern, or of the text that is put in for it, that makes no sense.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace VyrHost::Rename {

/// Throws a UsageError for --regex: the reason, and below it `text` with a mark under the unit at `place`.
[[noreturn]] void RefusePattern(std::u16string_view text, std::size_t place, const std::string& reason);

} // namespace VyrHost::Rename
