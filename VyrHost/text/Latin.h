/// @file
/// Spells Latin letters with the 26 of ASCII.
#pragma once

#include <VyrPlatform/text/CString.h>

namespace VyrHost::Text {

/// `text` with the letters of Latin script that ASCII lacks spelled out, the same on every system: accents go,
/// ligatures become their letters, and others the usual ones (ß ss, æ ae, œ oe, ø o, đ d, ł l, þ th, ı i). Combining
/// marks after Latin letters are removed, too. Everything else, including all other scripts, is kept. The table holds
/// the letters of Unicode 14 whose compatibility decomposition begins with ASCII letters, and those that have none but
/// a base letter in their name (UnicodeData.txt).
///
/// Example: "Žluťoučký Straße Жук" becomes "Zlutoucky Strasse Жук".
[[nodiscard]] CString SpellOutLatin(const CString& text);

} // namespace VyrHost::Text
