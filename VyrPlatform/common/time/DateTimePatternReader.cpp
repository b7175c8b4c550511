#include <VyrPlatform/common/time/DateTimePatternReader.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/text/Digits.h>
#include <VyrPlatform/text/Locale.h>
#include <VyrPlatform/time/DateTimePattern.h>

#include <algorithm>
#include <array>

namespace VyrPlatform::DateTimePattern {

namespace {

using Locale::GetDateTexts;

/// The blank, the tab, and the no-break spaces, which the patterns of some locales contain.
bool IsBlank(char16_t unit) noexcept
{
    return unit == u' ' || unit == u'\t' || unit == u'\u00A0' || unit == u'\u202F';
}

/// English names are read in every locale.
constexpr std::array<std::u16string_view, 12> englishMonths{u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun",
                                                            u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};

struct Form
{
    CString pattern;
    Reading reading;
};

bool Take(Reader& reader, const Form& form)
{
    return reader.Take(form.pattern, form.reading);
}

std::u16string_view WithoutBlanksAround(std::u16string_view text)
{
    const std::size_t first = std::min(text.find_first_not_of(u" \t"), text.size());
    return text.substr(first, text.find_last_not_of(u" \t") + 1 - first);
}

} // namespace

bool Reader::Take(std::u16string_view pattern, Reading reading)
{
    while (!pattern.empty()) {
        const bool isPadded = !pattern.starts_with(u"%-");
        const std::size_t conversion = isPadded ? 2 : 3;
        if (pattern.front() == u'%' && pattern.size() >= conversion) {
            if (!TakeConversion(pattern[conversion - 1], isPadded, reading))
                return false;
            pattern.remove_prefix(conversion);
        } else {
            const bool isTaken =
                reading == Reading::Lenient && IsBlank(pattern.front()) ? TakeBlanks() : TakeUnit(pattern.front());
            if (!isTaken)
                return false;
            pattern.remove_prefix(1);
        }
    }
    return true;
}

bool Reader::TakeConversion(char16_t letter, bool isPadded, Reading reading)
{
    const std::size_t least = isPadded && reading == Reading::Exact ? 2 : 1;
    switch (letter) {
    case u'Y':
    case u'y':
        return TakeYear(letter == u'Y', reading);
    case u'm':
        return TakeNumber(m_fields.month, least, 2);
    case u'd':
        return TakeNumber(m_fields.day, least, 2);
    case u'I':
        m_fields.isTwelveHour = true;
        return TakeNumber(m_fields.hour, least, 2) && m_fields.hour >= 1 && m_fields.hour <= 12;
    case u'H':
        return TakeNumber(m_fields.hour, least, 2);
    case u'M':
        return TakeNumber(m_fields.minute, least, 2);
    case u'S':
        return TakeNumber(m_fields.second, least, 2);
    case u'B':
    case u'b':
        return TakeMonthName();
    case u'A':
    case u'a':
        return TakeDayName();
    case u'p':
        return TakeHalfDay();
    default:
        return letter == u'%' && TakeUnit(letter);
    }
}

bool Reader::TakeUnit(char16_t unit) noexcept
{
    if (!m_rest.starts_with(unit))
        return false;
    m_rest.remove_prefix(1);
    return true;
}

bool Reader::TakeBlanks() noexcept
{
    const auto end = std::find_if_not(m_rest.begin(), m_rest.end(), IsBlank);
    const auto length = static_cast<std::size_t>(end - m_rest.begin());
    m_rest.remove_prefix(length);
    return length > 0;
}

bool Reader::TakeNumber(int& number, std::size_t least, std::size_t most) noexcept
{
    number = 0;
    std::size_t length = 0;
    for (; length < std::min(most, m_rest.size()) && IsDigit(m_rest[length]); ++length)
        number = number * 10 + (m_rest[length] - u'0');
    m_rest.remove_prefix(length);
    return length >= least;
}

bool Reader::TakeYear(bool isLong, Reading reading) noexcept
{
    const std::u16string_view front = m_rest.substr(0, 4);
    const bool hasFour = front.size() == 4 && std::all_of(front.begin(), front.end(), IsDigit);
    if (reading == Reading::Exact ? isLong : hasFour)
        return TakeNumber(m_fields.year, 4, 4);
    if (!TakeNumber(m_fields.year, 2, 2))
        return false;
    m_fields.year += m_fields.year < 30 ? 2000 : 1900;
    return true;
}

/// Finds the longest of `names` with which the rest begins, in either case; it must be longer than `length`.
template <class Names>
void Reader::FindLongest(const Names& names, int& index, std::size_t& length) const
{
    for (std::size_t at = 0; at < names.size(); ++at) {
        const std::u16string_view name = names[at];
        if (name.size() > length && CString(m_rest.substr(0, name.size())).CompareNoCase(name) == 0) {
            index = static_cast<int>(at);
            length = name.size();
        }
    }
}

bool Reader::TakeMonthName()
{
    int index = 0;
    std::size_t length = 0;
    FindLongest(GetDateTexts().months, index, length);
    FindLongest(GetDateTexts().shortMonths, index, length);
    FindLongest(englishMonths, index, length);
    m_fields.month = index + 1;
    m_rest.remove_prefix(length);
    return length > 0;
}

bool Reader::TakeDayName()
{
    int index = 0;
    std::size_t length = 0;
    FindLongest(GetDateTexts().days, index, length);
    FindLongest(GetDateTexts().shortDays, index, length);
    m_rest.remove_prefix(length);
    return length > 0;
}

bool Reader::TakeHalfDay()
{
    int index = 0;
    std::size_t length = 0;
    FindLongest(std::array<std::u16string_view, 2>{GetDateTexts().am, GetDateTexts().pm}, index, length);
    m_fields.isAfternoon = index == 1;
    m_rest.remove_prefix(length);
    return length > 0;
}

COleDateTime Reader::Value() const noexcept
{
    int hour = m_fields.hour;
    if (m_fields.isTwelveHour)
        hour = hour % 12 + (m_fields.isAfternoon ? 12 : 0);
    return {m_fields.year, m_fields.month, m_fields.day, hour, m_fields.minute, m_fields.second};
}

COleDateTime Invalid() noexcept
{
    COleDateTime none;
    none.SetStatus(COleDateTime::invalid);
    return none;
}

COleDateTime Read(std::u16string_view text, std::u16string_view pattern)
{
    Reader reader(text);
    if (reader.Take(pattern, Reading::Exact) && reader.IsAtEnd())
        return reader.Value();
    return Invalid();
}

COleDateTime ReadUsual(std::u16string_view text)
{
    const std::array<Form, 4> dates{{{u"%Y/%m/%d", Reading::Exact},
                                     {u"%Y-%m-%d", Reading::Exact},
                                     {u"%Y-%b-%d", Reading::Exact},
                                     {ShortDate(), Reading::Lenient}}};
    const std::array<Form, 3> times{
        {{u"%H:%M:%S", Reading::Exact}, {u"%H:%M", Reading::Exact}, {TimeOfDay(), Reading::Lenient}}};
    for (const Form& date : dates) {
        Reader reader(WithoutBlanksAround(text));
        if (!Take(reader, date))
            continue;
        if (reader.IsAtEnd())
            return reader.Value();
        if (!reader.TakeBlanks())
            continue;
        for (const Form& time : times)
            if (Reader attempt = reader; Take(attempt, time) && attempt.IsAtEnd())
                return attempt.Value();
    }
    return Invalid();
}

} // namespace VyrPlatform::DateTimePattern
