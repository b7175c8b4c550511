#include <VyrHost/text/TypedDateTime.h>

#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>

namespace VyrHost::Text {

namespace {

constexpr std::u16string_view anyDate = u"2000-01-01 ";
constexpr std::u16string_view anyTime = u" 00:00";

COleDateTime Parse(const CString& text)
{
    constexpr std::uint32_t userLocale = 1024;
    return VyrLibraryUtils::DateTimeUtils::GetParseDateTime(text, 1, 0, userLocale);
}

bool IsValid(const COleDateTime& dateTime)
{
    return dateTime.GetStatus() == COleDateTime::valid;
}

/// Replaces the T of ISO 8601 between date and time of day, after ten code units, by a blank.
CString WithoutT(std::u16string_view text)
{
    constexpr std::size_t lengthOfDate = 10;
    const auto isDigit = [](char16_t unit) {
        return unit >= u'0' && unit <= u'9';
    };
    if (text.size() <= lengthOfDate + 1 || text[lengthOfDate] != u'T' || !isDigit(text[lengthOfDate - 1]))
        return text;
    return CString::Join({text.substr(0, lengthOfDate), u" ", text.substr(lengthOfDate + 1)});
}

} // namespace

std::optional<TypedDateTime> ReadTypedDateTime(std::u16string_view text)
{
    const CString plain = WithoutT(text);
    if (const COleDateTime value = Parse(plain); IsValid(value)) {
        const bool isDateAlone = IsValid(Parse(CString::Join({plain, anyTime})));
        return TypedDateTime{value, true, !isDateAlone};
    }
    const bool isBlank = plain.View().find_first_not_of(u' ') == std::u16string_view::npos;
    if (const COleDateTime value = Parse(CString::Join({anyDate, plain})); !isBlank && IsValid(value))
        return TypedDateTime{value, false, true};
    return std::nullopt;
}

} // namespace VyrHost::Text
