/// @file
/// Text in 8-bit code pages, known by the numbers that Windows gives them.
///
/// On Windows every code page of the system is known. On Linux these are, through ICU: 437, 850, 852, 866, 874, 932,
/// 936, 949, 950, 1250 to 1258, 20127 (US-ASCII), 28591 to 28599, 28603 and 28605 (ISO 8859), 65001 (UTF-8), and 0,
/// which stands for the ANSI code page.
///
/// ASCII stands for itself in all of them. Letters, composed or not, and what a code page lacks give the same bytes on
/// both systems. The systems' tables differ where a code page defines nothing: a byte without a character is a
/// character of the private use area on Windows and U+FFFD on Linux; a character that the code page lacks but has
/// something similar to (its "best fit": U+0100 as `A`) becomes that on Windows, and on Linux for the few characters
/// for which ICU has such a fallback.
#pragma once

#include <VyrPlatform/Export.h>

#include <cstddef>
#include <cstdint>
#include <span>

namespace VyrPlatform::CodePage {

constexpr std::uint32_t utf8 = 65001;

/// The code page of the system's 8-bit texts. On Windows its ANSI code page. On Linux that of the locale that the
/// environment names (LC_ALL, LC_CTYPE or LANG): UTF-8 where it says so and where it names none that is known here.
/// Asked once.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t GetAnsi();

/// Converts bytes to text. What is no character (a sequence that is cut short counts as one) becomes U+FFFD in UTF-8,
/// else the default character of the code page: U+30FB in 932, "?" in 936, 949 and 950.
/// @param bytes  up to its NUL.
/// @param target  gets the text and a NUL where it has room for both, else nothing of use.
/// @return how many units the text has, its NUL included; 0 when the code page is not known or does not take part in
///         conversions of this kind.
[[nodiscard]] VYR_PLATFORM_API std::size_t ToText(std::uint32_t codePage, const char* bytes,
                                                  std::span<char16_t> target);

/// Converts text to bytes. A letter and the mark behind it are written as one character where the code page has that,
/// else as two. What the code page lacks becomes `defaultCharacter`: once for each code unit, so twice for a character
/// of two; UTF-8 lacks nothing, but for a lone surrogate, which becomes U+FFFD.
/// @param text  up to its NUL.
/// @param target  gets the bytes and a NUL where it has room for both, else nothing of use.
/// @return how many bytes there are, the NUL included; 0 as ToText.
[[nodiscard]] VYR_PLATFORM_API std::size_t ToBytes(std::uint32_t codePage, const char16_t* text, char defaultCharacter,
                                                   std::span<char> target);

} // namespace VyrPlatform::CodePage
