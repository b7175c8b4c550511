/// @file
/// Date patterns as systems give them, brought into the one form that Locale promises.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <functional>
#include <string_view>

namespace VyrPlatform::Locale {

/// Writes `pattern` anew: every run of one ASCII letter outside apostrophes becomes what `replace` gives for it; all
/// else stays.
[[nodiscard]] CString ReplaceLetterRuns(std::u16string_view pattern,
                                        const std::function<CString(std::u16string_view run)>& replace);

/// `text` with plain blanks for every kind of blank, and without the marks of writing direction.
[[nodiscard]] CString TidyText(std::u16string_view text);
/// `pattern` likewise, with its year in four digits, so that what it writes can be read back, and with the halves of
/// the day for any finer parts of it (morning, evening, night).
[[nodiscard]] CString TidyPattern(std::u16string_view pattern);

} // namespace VyrPlatform::Locale
