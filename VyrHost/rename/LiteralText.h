/// @file
/// What the literal text of a rule may hold.
#pragma once

#include <string_view>

namespace VyrHost::Rename {

/// Throws UsageError when `text`, given with `option`, could not be a part of a name.
void RequireNameText(std::u16string_view text, const char* option);

} // namespace VyrHost::Rename
