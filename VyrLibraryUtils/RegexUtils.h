/// @file
/// Tests which characters a text consists of.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryUtils {

/// Character classes. They are ASCII classes in every locale; an empty text is in none of them.
class VYR_UTILS_API RegexUtils
{
public:
    RegexUtils();
    ~RegexUtils();
    RegexUtils& operator=(const RegexUtils&);

    /// 1 when `text` consists only of the digits 0 to 9 and the letters A to F and a to f, else 0.
    static int IsHex(CString text);
    /// 1 when `text` consists only of the digits 0 to 9 and the letters A to Z and a to z, else 0.
    static int IsAlphabetNumber(CString text);
    /// 1 when `text` consists only of ASCII punctuation (U+0021 to U+007E without letters and digits), else 0.
    static int IsSymbol(CString text);
};

} // namespace VyrLibraryUtils
