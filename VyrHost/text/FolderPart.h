/// @file
/// The folder in the text of a path.
#pragma once

#include <string_view>

namespace VyrHost::Text {

/// All of `path` up to its last separator, which is part of it; empty when there is none. The text alone counts.
[[nodiscard]] std::u16string_view FolderPart(std::u16string_view path);

} // namespace VyrHost::Text
