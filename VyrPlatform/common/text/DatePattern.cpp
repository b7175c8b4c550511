#include <VyrPlatform/common/text/DatePattern.h>

namespace VyrPlatform::Locale {

namespace {

bool IsAsciiLetter(char16_t unit) noexcept
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

/// The end of the piece that begins at `start`: a text in apostrophes, a run of one letter, or a single code unit.
std::size_t EndOfPiece(std::u16string_view pattern, std::size_t start) noexcept
{
    std::size_t end = start + 1;
    if (pattern[start] == u'\'')
        end = pattern.find(u'\'', start + 1) + 1;
    else if (IsAsciiLetter(pattern[start]))
        end = pattern.find_first_not_of(pattern[start], start);
    // Both searches may have failed.
    return end == 0 || end == std::u16string_view::npos ? pattern.size() : end;
}

} // namespace

CString ReplaceLetterRuns(std::u16string_view pattern, const std::function<CString(std::u16string_view)>& replace)
{
    CString result;
    for (std::size_t at = 0; at < pattern.size();) {
        const std::size_t end = EndOfPiece(pattern, at);
        const std::u16string_view piece = pattern.substr(at, end - at);
        if (IsAsciiLetter(piece.front()))
            result += replace(piece);
        else
            result += piece;
        at = end;
    }
    return result;
}

CString TidyText(std::u16string_view text)
{
    CString result;
    for (const char16_t unit : text) {
        const bool isDirectionMark = unit == u'\u200E' || unit == u'\u200F' || unit == u'\u061C';
        const bool isBlank = unit == u'\u00A0' || unit == u'\u202F' || unit == u'\u2009';
        if (!isDirectionMark)
            result += isBlank ? u' ' : unit;
    }
    return result;
}

CString TidyPattern(std::u16string_view pattern)
{
    return ReplaceLetterRuns(TidyText(pattern), [](std::u16string_view run) -> CString {
        switch (run.front()) {
        case u'y':
            return u"yyyy";
        case u'b':
        case u'B':
            return u"a";
        default:
            return run;
        }
    });
}

} // namespace VyrPlatform::Locale
