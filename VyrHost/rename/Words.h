/// @file
/// Edits words, numbers and blanks in names: letter case by words, width of numbers, superfluous blanks.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrHost::Rename {

enum class TitleStyle : std::uint8_t
{
    /// Every word begins with a capital.
    EveryWord,
    /// English: a, the, of, and the like begin with a small letter inside the title.
    English
};

/// Makes words begin with a capital. A word with a capital after its first letter stays as it is (NASA, iPhone), unless
/// the whole text is in capitals, where acronyms cannot be distinguished from words. Letters after an apostrophe stay
/// small (don't), except in names such as O'Neill and d'Artagnan, where three or more letters follow o', d' or l'.
///
/// Example: "the best of NASA's o'neill" becomes "The Best Of NASA's O'Neill", in English "The Best of NASA's O'Neill".
[[nodiscard]] CString TitleCase(const CString& text, TitleStyle style);

/// Makes the first word, and each one after the end of a sentence, begin with a capital and all others with a small
/// letter, with the exceptions of TitleCase.
///
/// Example: "My Holiday. The USB Stick" becomes "My holiday. The USB stick".
[[nodiscard]] CString SentenceCase(const CString& text);

/// Selects numbers (runs of the digits 0 to 9) in a name.
enum class WhichNumbers : std::uint8_t
{
    All,
    First,
    Last
};

/// The maximum width to which a number is padded.
inline constexpr int widestNumber = 255;

/// Pads numbers with leading zeros.
/// @param width  the minimum number of digits, from 0; longer numbers are not changed.
[[nodiscard]] CString PadNumbers(const CString& text, int width, WhichNumbers which);

/// Removes the blanks at both ends. Blanks are Unicode's White_Space.
[[nodiscard]] CString TrimBlanks(const CString& text);

/// Replaces each run of blanks with one space.
[[nodiscard]] CString CollapseBlanks(const CString& text);

} // namespace VyrHost::Rename
