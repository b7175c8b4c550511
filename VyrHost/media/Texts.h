/// @file
/// Converts texts of media for use in names.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string_view>

namespace VyrHost::Media {

/// CleanText of `bytes` in UTF-8, or in Latin-1 if they are not UTF-8.
[[nodiscard]] CString TextOf(std::string_view bytes);

/// UTF-16 of unknown byte order, without the byte order mark. Without a mark, the byte order is the one in which more
/// units are below 256; little-endian if equal.
[[nodiscard]] CString FromUtf16(std::string_view bytes);

/// CleanText of FromUtf16(bytes).
[[nodiscard]] CString WideTextOf(std::string_view bytes);

/// `text` up to its first NUL, with each run of blanks and control characters replaced by one blank, trimmed, and
/// truncated to 4096 code units.
[[nodiscard]] CString CleanText(std::u16string_view text);

/// The number at the start of `text`, after blanks: 1 in "1/12", 2024 in "2024-01-05"; 0 if there is none, or it is
/// negative or too large.
[[nodiscard]] unsigned NumberAtFront(std::string_view text);

} // namespace VyrHost::Media
