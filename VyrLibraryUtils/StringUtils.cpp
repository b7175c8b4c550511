#include <VyrLibraryUtils/StringUtils.h>
#include <VyrPlatform/text/Locale.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <initializer_list>
#include <limits>
#include <tuple>

namespace VyrLibraryUtils {

namespace {

/// `format` with each "%s" replaced by the next of at most seven `texts`.
CString FillIn(std::u16string_view format, std::initializer_list<std::u16string_view> texts)
{
    constexpr std::u16string_view mark = u"%s";
    constexpr std::size_t mostTexts = 7;
    std::array<std::u16string_view, 2 * mostTexts + 1> pieces;
    std::size_t count = 0;
    for (const std::u16string_view text : texts) {
        const std::size_t found = format.find(mark);
        if (found == format.npos)
            break;
        pieces[count++] = format.substr(0, found);
        pieces[count++] = text;
        format.remove_prefix(found + mark.size());
    }
    pieces[count] = format;
    return std::apply([](auto... piece) { return CString::Join({piece...}); }, pieces);
}

template <class Number>
CString ToText(Number number)
{
    // Room for the longest 64-bit number and its sign.
    std::array<char, 24> digits;
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    std::array<char16_t, 24> text;
    const auto textEnd = std::copy(static_cast<const char*>(digits.data()), end, text.begin());
    return std::u16string_view(text.begin(), textEnd);
}

bool IsBlank(char16_t unit) noexcept
{
    return unit == u' ' || (unit >= u'\t' && unit <= u'\r');
}

/// A number read from the start of a text: its sign, and its value limited to 64 bits.
struct ReadNumber
{
    bool isNegative = false;
    std::uint64_t magnitude = 0;
};

ReadNumber Read(std::u16string_view text) noexcept
{
    ReadNumber number;
    auto at = std::find_if_not(text.begin(), text.end(), IsBlank);
    if (at != text.end() && (*at == u'-' || *at == u'+'))
        number.isNegative = *at++ == u'-';
    for (; at != text.end() && *at >= u'0' && *at <= u'9'; ++at)
        if (__builtin_mul_overflow(number.magnitude, 10U, &number.magnitude) ||
            __builtin_add_overflow(number.magnitude, static_cast<unsigned>(*at - u'0'), &number.magnitude)) {
            number.magnitude = std::numeric_limits<std::uint64_t>::max();
            break;
        }
    return number;
}

std::int32_t ToInt(std::u16string_view text) noexcept
{
    const ReadNumber number = Read(text);
    const std::uint64_t most = std::uint64_t{std::numeric_limits<std::int32_t>::max()} + (number.isNegative ? 1 : 0);
    const auto magnitude = static_cast<std::int64_t>(std::min(number.magnitude, most));
    return static_cast<std::int32_t>(number.isNegative ? -magnitude : magnitude);
}

/// Removes and returns the next token of `text`; empty when there is none.
std::u16string_view NextToken(std::u16string_view& text, std::u16string_view separators) noexcept
{
    text.remove_prefix(std::min(text.find_first_not_of(separators), text.size()));
    const std::u16string_view token = text.substr(0, text.find_first_of(separators));
    text.remove_prefix(token.size());
    return token;
}

std::u16string_view TokenAt(std::u16string_view text, std::u16string_view separators, int index) noexcept
{
    if (index < 0)
        return {};
    std::u16string_view token = NextToken(text, separators);
    for (; index > 0 && !token.empty(); --index)
        token = NextToken(text, separators);
    return token;
}

int CountTokens(std::u16string_view text, std::u16string_view separators) noexcept
{
    int count = 0;
    while (!NextToken(text, separators).empty())
        ++count;
    return count;
}

/// Whether a separator comes before the last `rest` digits of a number (never before its first digit).
bool IsGroupStart(int rest, const VyrPlatform::Locale::NumberTexts& texts) noexcept
{
    if (texts.lastGroup <= 0 || rest < texts.lastGroup)
        return false;
    if (rest == texts.lastGroup)
        return true;
    return texts.otherGroups > 0 && (rest - texts.lastGroup) % texts.otherGroups == 0;
}

CString Group(const CString& number)
{
    const VyrPlatform::Locale::NumberTexts& texts = VyrPlatform::Locale::GetNumberTexts();
    const int sign = number.GetLength() > 0 && number[0] == u'-' ? 1 : 0;
    CString result = number.Left(sign);
    for (int at = sign; at < number.GetLength(); ++at) {
        if (at > sign && IsGroupStart(number.GetLength() - at, texts))
            result += texts.thousands;
        result += number[at];
    }
    return result;
}

} // namespace

StringUtils::StringUtils() = default;
StringUtils::~StringUtils() = default;
StringUtils& StringUtils::operator=(const StringUtils&) = default;

CString StringUtils::GetFormatedText(CString format, CString text1)
{
    return FillIn(format, {text1});
}

CString StringUtils::GetFormatedText(CString format, CString text1, CString text2)
{
    return FillIn(format, {text1, text2});
}

CString StringUtils::GetFormatedText(CString format, CString text1, CString text2, CString text3)
{
    return FillIn(format, {text1, text2, text3});
}

CString StringUtils::GetFormatedText(CString format, CString text1, CString text2, CString text3, CString text4)
{
    return FillIn(format, {text1, text2, text3, text4});
}

CString StringUtils::GetFormatedText(CString format, CString text1, CString text2, CString text3, CString text4,
                                     CString text5)
{
    return FillIn(format, {text1, text2, text3, text4, text5});
}

CString StringUtils::GetFormatedText(CString format, CString text1, CString text2, CString text3, CString text4,
                                     CString text5, CString text6)
{
    return FillIn(format, {text1, text2, text3, text4, text5, text6});
}

CString StringUtils::GetFormatedText(CString format, CString text1, CString text2, CString text3, CString text4,
                                     CString text5, CString text6, CString text7)
{
    return FillIn(format, {text1, text2, text3, text4, text5, text6, text7});
}

CString StringUtils::IntNumberToString(std::int32_t number)
{
    return ToText(number);
}

CString StringUtils::DWORDNumberToString(std::uint32_t number)
{
    return ToText(number);
}

std::int32_t StringUtils::StringToIntNumber(CString text)
{
    return ToInt(text);
}

std::uint64_t StringUtils::StringToULongLong(CString text)
{
    const ReadNumber number = Read(text);
    return number.isNegative ? 0 : number.magnitude;
}

CString StringUtils::GetTokenizeString(CString text, CString separators, int index)
{
    return TokenAt(text, separators, index);
}

int StringUtils::GetTokenizeStringCount(CString text, CString separators)
{
    return CountTokens(text, separators);
}

int StringUtils::GetTokenizeInt(CString text, CString separators, int index)
{
    return ToInt(TokenAt(text, separators, index));
}

CString StringUtils::GetAddDoubleQuotesString(CString text)
{
    return CString::Join({u"\"", text, u"\""});
}

CString StringUtils::GetAddDoubleQuotesCommaString(CString text)
{
    return CString::Join({u"\"", text, u"\","});
}

CString StringUtils::GetRemoveDoubleQuotesString(CString text)
{
    text.Replace(u"\"", u"");
    return text;
}

CString StringUtils::GetFormatedSizeThousands(std::int64_t number)
{
    return Group(ToText(number));
}

} // namespace VyrLibraryUtils
