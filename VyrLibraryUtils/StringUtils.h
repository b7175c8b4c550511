/// @file
/// Fills in, splits and quotes texts, and converts numbers to text and back.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrLibraryUtils {

/// Text and numbers.
///
/// Tokens: a text is split at any of the separator characters. A run of separators counts as one, and those at both
/// ends are skipped, so that no token is empty and a text of separators alone has none. Without separators the whole
/// text is one token.
///
/// Numbers are read from the start of a text: optional blanks, an optional sign, then decimal digits up to the first
/// other character. Without digits the value is 0; one out of range becomes the nearest value of the type.
class VYR_UTILS_API StringUtils
{
public:
    StringUtils();
    ~StringUtils();
    StringUtils& operator=(const StringUtils&);

    /// `format` with each "%s" replaced, in order, by the next text. A "%s" inside a text is not replaced. Extra texts
    /// are ignored, an extra "%s" is kept, and everything else in `format` is literal.
    ///     GetFormatedText(u"%s of %s", u"1", u"2") gives "1 of 2".
    static CString GetFormatedText(CString format, CString text1);
    static CString GetFormatedText(CString format, CString text1, CString text2);
    static CString GetFormatedText(CString format, CString text1, CString text2, CString text3);
    static CString GetFormatedText(CString format, CString text1, CString text2, CString text3, CString text4);
    static CString GetFormatedText(CString format, CString text1, CString text2, CString text3, CString text4,
                                   CString text5);
    static CString GetFormatedText(CString format, CString text1, CString text2, CString text3, CString text4,
                                   CString text5, CString text6);
    static CString GetFormatedText(CString format, CString text1, CString text2, CString text3, CString text4,
                                   CString text5, CString text6, CString text7);

    /// `number` in decimal, with a minus sign when negative.
    static CString IntNumberToString(std::int32_t number);
    /// `number` in decimal.
    static CString DWORDNumberToString(std::uint32_t number);
    /// The number at the start of `text`.
    static std::int32_t StringToIntNumber(CString text);
    /// The number at the start of `text`; 0 for a negative one.
    static std::uint64_t StringToULongLong(CString text);

    /// The token at `index`, counted from 0; empty when there is none.
    static CString GetTokenizeString(CString text, CString separators, int index);
    /// The number of tokens of `text`.
    static int GetTokenizeStringCount(CString text, CString separators);
    /// The number at the start of the token at `index`; 0 when there is none.
    static int GetTokenizeInt(CString text, CString separators, int index);

    /// `text` in double quotes. Quotes in it are not doubled.
    static CString GetAddDoubleQuotesString(CString text);
    /// `text` in double quotes, then a comma.
    static CString GetAddDoubleQuotesCommaString(CString text);
    /// `text` without its double quotes.
    static CString GetRemoveDoubleQuotesString(CString text);

    /// `number` with the thousands separators of the user's locale.
    static CString GetFormatedSizeThousands(std::int64_t number);
};

} // namespace VyrLibraryUtils
