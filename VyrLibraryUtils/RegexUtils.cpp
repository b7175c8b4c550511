#include <VyrLibraryUtils/RegexUtils.h>

#include <VyrPlatform/text/Digits.h>

#include <algorithm>

namespace VyrLibraryUtils {

using VyrPlatform::IsDigit;

namespace {

bool IsBetween(char16_t unit, char16_t first, char16_t last) noexcept
{
    return unit >= first && unit <= last;
}

bool IsHexDigit(char16_t unit) noexcept
{
    return IsDigit(unit) || IsBetween(unit, u'A', u'F') || IsBetween(unit, u'a', u'f');
}

bool IsLetterOrDigit(char16_t unit) noexcept
{
    return IsDigit(unit) || IsBetween(unit, u'A', u'Z') || IsBetween(unit, u'a', u'z');
}

bool IsPunctuation(char16_t unit) noexcept
{
    return IsBetween(unit, u'!', u'~') && !IsLetterOrDigit(unit);
}

int ConsistsOf(const CString& text, bool (*isMember)(char16_t) noexcept)
{
    const std::u16string_view units = text;
    return !units.empty() && std::all_of(units.begin(), units.end(), isMember);
}

} // namespace

RegexUtils::RegexUtils() = default;
RegexUtils::~RegexUtils() = default;
RegexUtils& RegexUtils::operator=(const RegexUtils&) = default;

int RegexUtils::IsHex(CString text)
{
    return ConsistsOf(text, IsHexDigit);
}

int RegexUtils::IsAlphabetNumber(CString text)
{
    return ConsistsOf(text, IsLetterOrDigit);
}

int RegexUtils::IsSymbol(CString text)
{
    return ConsistsOf(text, IsPunctuation);
}

} // namespace VyrLibraryUtils
