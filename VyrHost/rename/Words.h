/// @file
/// Words, numbers and blanks in names: letter case by words, width of numbers, superfluous blanks.
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

/// Makes words begin with a capital. A word with a capital behind its first letter stays as it is (NASA, iPhone),
/// unless the whole text is in capitals, in which nothing tells an acronym from a word. Letters behind an apostrophe
/// stay small (don't), but in names such as O'Neill and d'Artagnan, where three or more follow o', d' or l'.
///
/// Example: "the best of NASA's o'neill" becomes "The Best Of NASA's O'Neill", in English "The Best of NASA's O'Neill".
[[nodiscard]] CString TitleCase(const CString& text, TitleStyle style);

/// Makes the first word, and each one behind the end of a sentence, begin with a capital and all others with a small
/// letter, with the exceptions of TitleCase.
///
/// Example: "My Holiday. The USB Stick" becomes "My holiday. The USB stick".
[[nodiscard]] CString SentenceCase(const CString& text);

/// Which numbers of a name, runs of the digits 0 to 9, are meant.
enum class WhichNumbers : std::uint8_t
{
    All,
    First,
    Last
};

/// The most digits that a number is filled up to.
inline constexpr int widestNumber = 255;

/// Fills numbers up with zeros in front.
/// @param width  the least number of digits, from 0 on; longer ones stay.
[[nodiscard]] CString PadNumbers(const CString& text, int width, WhichNumbers which);

/// Without the blanks at both ends. Blanks are Unicode's White_Space.
[[nodiscard]] CString TrimBlanks(const CString& text);

/// With one space for each run of blanks.
[[nodiscard]] CString CollapseBlanks(const CString& text);

} // namespace VyrHost::Rename
