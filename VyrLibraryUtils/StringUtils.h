/// @file
/// Fills in, splits and quotes texts, and converts numbers to text and back.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrLibraryUtils {

/// Text and numbers.
///
/// Tokens: a text is split at any of the separator characters; a run of them counts once and those at its ends are
/// skipped, so that no token is empty and a text of separators alone has none. Without separators the whole text is the
/// one token.
///
/// Numbers are read from the start of a text: optional blanks, an optional sign, then decimal digits up to the first
/// other character. Without digits the value is 0; one out of range becomes the nearest that the type holds.
class VYR_UTILS_API StringUtils
{
public:
    StringUtils();
    ~StringUtils();
    StringUtils& operator=(const StringUtils&);

    /// `format` with each "%s" replaced, in order, by the next text. A "%s" inside a text is not replaced. Texts left
    /// over are ignored, a "%s" left over stays, and nothing else in `format` has a meaning.
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
    /// How many tokens `text` has.
    static int GetTokenizeStringCount(CString text, CString separators);
    /// The number at the start of the token at `index`; 0 when there is none.
    static int GetTokenizeInt(CString text, CString separators, int index);

    /// `text` in double quotes. Those that it holds already are not doubled.
    static CString GetAddDoubleQuotesString(CString text);
    /// `text` in double quotes, then a comma.
    static CString GetAddDoubleQuotesCommaString(CString text);
    /// `text` without any double quote.
    static CString GetRemoveDoubleQuotesString(CString text);

    /// `number` with the thousands separators of the user's locale.
    static CString GetFormatedSizeThousands(std::int64_t number);
};

} // namespace VyrLibraryUtils
