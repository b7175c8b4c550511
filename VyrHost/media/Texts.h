/// @file
/// Texts of media, made fit for a name.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string_view>

namespace VyrHost::Media {

/// `bytes` as UTF-8, or as Latin-1 where they are not UTF-8, made clean.
[[nodiscard]] CString TextOf(std::string_view bytes);

/// UTF-16 of unknown byte order, without its mark. A text without one is in the order in which more of its units are
/// below 256, little-endian where that does not tell.
[[nodiscard]] CString FromUtf16(std::string_view bytes);

/// FromUtf16(bytes), made clean.
[[nodiscard]] CString WideTextOf(std::string_view bytes);

/// `text` up to its first NUL, with each run of blanks and control characters made one blank, none around it, cut to
/// 4096 code units.
[[nodiscard]] CString CleanText(std::u16string_view text);

/// The number that `text` begins with, behind blanks: 1 of "1/12", 2024 of "2024-01-05"; 0 where there is none, or one
/// that is negative or too large.
[[nodiscard]] unsigned NumberAtFront(std::string_view text);

} // namespace VyrHost::Media
