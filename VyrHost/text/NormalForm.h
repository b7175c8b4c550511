/// @file
/// Texts found in names whatever normal form either is written in.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string_view>
#include <vector>

namespace VyrHost::Text {

/// `text` in composed letters (the normal form NFC).
[[nodiscard]] CString Composed(const CString& text);

/// Whether `text` is in composed letters.
[[nodiscard]] bool IsComposed(const CString& text);

/// Cuts `text` into pieces that compose each for itself: a letter and the accents behind it are one piece. Example: the
/// letters e, U+0301, x are the pieces "e, U+0301" and "x".
[[nodiscard]] std::vector<std::u16string_view> CutForComposing(std::u16string_view text);

/// `name` with `replacement` in place of every `composedText` that the composed name would have; all else stays in the
/// form that it has. Example: "é" (one letter) is found in the name "e, U+0301", and "e" is not.
[[nodiscard]] CString ReplaceComposed(const CString& name, const CString& composedText, const CString& replacement);

} // namespace VyrHost::Text
