/// @file
/// Finds texts in names without regard to their normal forms.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string_view>
#include <vector>

namespace VyrHost::Text {

/// `text` in the normal form NFC.
[[nodiscard]] CString Composed(const CString& text);

/// Whether `text` is in the normal form NFC.
[[nodiscard]] bool IsComposed(const CString& text);

/// Splits `text` into pieces that compose independently: a letter and the marks after it are one piece. Example: the
/// letters e, U+0301, x are the pieces "e, U+0301" and "x".
[[nodiscard]] std::vector<std::u16string_view> CutForComposing(std::u16string_view text);

/// `name` with every occurrence of `composedText` in its composed form replaced by `replacement`; the rest keeps its
/// form. Example: "é" (one letter) is found in the name "e, U+0301", and "e" is not.
[[nodiscard]] CString ReplaceComposed(const CString& name, const CString& composedText, const CString& replacement);
/// The same without regard to letter case.
[[nodiscard]] CString ReplaceComposedNoCase(const CString& name, const CString& composedText,
                                            const CString& replacement);

} // namespace VyrHost::Text
