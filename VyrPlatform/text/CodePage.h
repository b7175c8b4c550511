/// @file
/// Text in 8-bit code pages, identified by Windows' numbers.
///
/// On Windows all code pages of the system are known. On Linux these are, through ICU: 437, 850, 852, 866, 874, 932,
/// 936, 949, 950, 1250 to 1258, 20127 (US-ASCII), 28591 to 28599, 28603 and 28605 (ISO 8859), 65001 (UTF-8), and 0 for
/// the ANSI code page.
///
/// All of them contain ASCII unchanged. Letters, composed or not, and characters that a code page lacks give the same
/// bytes on both systems. The systems' tables differ where a code page defines nothing: an undefined byte becomes a
/// character of the private use area on Windows and U+FFFD on Linux. A missing character with a similar one in the code
/// page (its "best fit": U+0100 as `A`) becomes that one on Windows; on Linux only for the few characters for which ICU
/// has such a fallback.
#pragma once

#include <VyrPlatform/Export.h>

#include <cstddef>
#include <cstdint>
#include <span>

namespace VyrPlatform::CodePage {

constexpr std::uint32_t utf8 = 65001;

/// The code page of the system's 8-bit texts: on Windows its ANSI code page; on Linux that of the locale in the
/// environment (LC_ALL, LC_CTYPE or LANG), and UTF-8 where the locale names none that is known here. Determined once.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t GetAnsi();

/// Converts bytes to text. An invalid sequence (also a truncated one) becomes U+FFFD in UTF-8, else the default
/// character of the code page: U+30FB in 932, "?" in 936, 949 and 950.
/// @param bytes  up to its NUL.
/// @param target  gets the text and a NUL if both fit, else unspecified content.
/// @return the length of the text in code units, including the NUL; 0 when the code page is unknown or does not support
/// such conversions.
[[nodiscard]] VYR_PLATFORM_API std::size_t ToText(std::uint32_t codePage, const char* bytes,
                                                  std::span<char16_t> target);

/// Converts text to bytes. A letter and a combining mark after it are written as one character where the code page has
/// it, else as two. Each code unit of a missing character becomes `defaultCharacter`, so a surrogate pair becomes two.
/// UTF-8 lacks no character; a lone surrogate becomes U+FFFD.
/// @param text  up to its NUL.
/// @param target  gets the bytes and a NUL if both fit, else unspecified content.
/// @return the number of bytes, including the NUL; 0 as for ToText.
[[nodiscard]] VYR_PLATFORM_API std::size_t ToBytes(std::uint32_t codePage, const char16_t* text, char defaultCharacter,
                                                   std::span<char> target);

} // namespace VyrPlatform::CodePage
