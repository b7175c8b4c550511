/// @file
/// How many columns of a terminal a character takes.
#pragma once

namespace VyrHost::Text {

/// 0 for a character that is drawn over the one before it, 2 for a wide one (East Asian Width W and F), else 1.
[[nodiscard]] int CharacterWidth(char32_t character);

} // namespace VyrHost::Text
