/// @file
/// Converts the systems' date patterns to the form that Locale documents.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <functional>
#include <string_view>

namespace VyrPlatform::Locale {

/// Replaces every run of one ASCII letter outside apostrophes in `pattern` with the result of `replace`.
[[nodiscard]] CString ReplaceLetterRuns(std::u16string_view pattern,
                                        const std::function<CString(std::u16string_view run)>& replace);

/// `text` with plain blanks for every kind of blank, and without the marks of writing direction.
[[nodiscard]] CString TidyText(std::u16string_view text);
/// The same for `pattern`, with a year of four digits, so that a written date can be read back, and with AM or PM
/// instead of finer parts of the day (morning, evening, night).
[[nodiscard]] CString TidyPattern(std::u16string_view pattern);

} // namespace VyrPlatform::Locale
