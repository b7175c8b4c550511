// The locale through Windows's national language support.
#include <VyrPlatform/common/text/DatePattern.h>
#include <VyrPlatform/common/text/SystemLocale.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <memory>
#include <string>
#include <string_view>
#include <windows.h>

namespace VyrPlatform::Locale {

namespace {

CString Info(const CString& localeName, LCTYPE type)
{
    const int size = ::GetLocaleInfoEx(ToWide(localeName), type, nullptr, 0);
    if (size <= 1)
        return {};
    std::wstring text(static_cast<std::size_t>(size), L'\0');
    const int written = ::GetLocaleInfoEx(ToWide(localeName), type, text.data(), size);
    return FromWide(std::wstring_view(text).substr(0, written > 0 ? static_cast<std::size_t>(written) - 1 : 0));
}

/// The texts of `Count` consecutive types from `first` on.
template <std::size_t Count>
std::array<CString, Count> Infos(const CString& localeName, LCTYPE first)
{
    std::array<CString, Count> texts;
    for (std::size_t i = 0; i < Count; ++i)
        texts[i] = Info(localeName, first + static_cast<LCTYPE>(i));
    return texts;
}

/// The names of the days from Sunday on; the system counts them from Monday, with Sunday last.
std::array<CString, 7> DaysFromSunday(const CString& localeName, LCTYPE monday)
{
    const std::array<CString, 7> fromMonday = Infos<7>(localeName, monday);
    std::array<CString, 7> days;
    for (std::size_t i = 0; i < days.size(); ++i)
        days[i] = fromMonday[(i + 6) % 7];
    return days;
}

/// A run of one letter of a Windows date or time picture as Unicode's letters.
CString UnicodeLetters(std::u16string_view run)
{
    switch (run.front()) {
    case u't':
        return u"a";
    case u'd':
        return run.size() < 3 ? CString(run) : CString(run.size() == 3 ? u"EEE" : u"EEEE");
    case u'g':
        // The era.
        return {};
    default:
        return run;
    }
}

CString Pattern(const CString& localeName, LCTYPE type)
{
    return ReplaceLetterRuns(Info(localeName, type), UnicodeLetters);
}

/// The result of one kind of case mapping for each code unit.
class CaseTable
{
public:
    /// `letterI` is the mapping of `dottedOrDotlessI`: linguistic casing treats it differently.
    CaseTable(DWORD mapping, char16_t dottedOrDotlessI, char16_t letterI)
    {
        std::wstring all(unitCount, L'\0');
        for (std::size_t i = 0; i < unitCount; ++i)
            all[i] = static_cast<wchar_t>(i);
        std::wstring mapped = all;
        constexpr int count = static_cast<int>(unitCount);
        const int length = ::LCMapStringEx(LOCALE_NAME_INVARIANT, mapping | LCMAP_LINGUISTIC_CASING, all.data(), count,
                                           mapped.data(), count, nullptr, nullptr, 0);
        m_units = length == count ? mapped : all;
        m_units[dottedOrDotlessI] = static_cast<wchar_t>(letterI);
        for (std::size_t surrogate = 0xD800; surrogate < 0xE000; ++surrogate)
            m_units[surrogate] = static_cast<wchar_t>(surrogate);
    }

    [[nodiscard]] char16_t operator[](char16_t unit) const noexcept { return static_cast<char16_t>(m_units[unit]); }

private:
    static constexpr std::size_t unitCount = 0x10000;
    std::wstring m_units;
};

int GroupSize(std::u16string_view grouping, std::size_t index) noexcept
{
    return grouping.size() > index ? grouping[index] - u'0' : 0;
}

} // namespace

CString UserLocaleName(Category /*category*/)
{
    wchar_t name[LOCALE_NAME_MAX_LENGTH];
    const int length = ::GetUserDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH);
    return length > 1 ? FromWide({name, static_cast<std::size_t>(length) - 1}) : CString(u"en-US");
}

CString SystemLocaleName(const CString& name)
{
    CString plain = name.View().substr(0, name.View().find_first_of(u".@"));
    plain.Replace(u"_", u"-");
    // Finds the full name of a shorter one (az-AZ is az-Latn-AZ); empty for C, POSIX and unknown names.
    wchar_t resolved[LOCALE_NAME_MAX_LENGTH];
    const int length = ::ResolveLocaleName(ToWide(plain), resolved, LOCALE_NAME_MAX_LENGTH);
    return length > 1 ? FromWide({resolved, static_cast<std::size_t>(length) - 1}) : CString(u"en-US");
}

char16_t SystemUpper(char16_t unit) noexcept
{
    static const CaseTable table(LCMAP_UPPERCASE, u'\u0131', u'I');
    return table[unit];
}

char16_t SystemLower(char16_t unit) noexcept
{
    static const CaseTable table(LCMAP_LOWERCASE, u'\u0130', u'i');
    return table[unit];
}

Collation MakeCollation(const CString& localeName)
{
    return [localeName](const CString& left, const CString& right) {
        const int order = ::CompareStringEx(ToWide(localeName), 0, ToWide(left), left.GetLength(), ToWide(right),
                                            right.GetLength(), nullptr, nullptr, 0);
        return order == 0 ? left.View().compare(right) : order - CSTR_EQUAL;
    };
}

DateTexts ReadDateTexts(const CString& localeName)
{
    DateTexts texts;
    // The form for use with a day, where a language has two.
    texts.months = Infos<12>(localeName, LOCALE_SMONTHNAME1 | LOCALE_RETURN_GENITIVE_NAMES);
    texts.shortMonths = Infos<12>(localeName, LOCALE_SABBREVMONTHNAME1 | LOCALE_RETURN_GENITIVE_NAMES);
    texts.days = DaysFromSunday(localeName, LOCALE_SDAYNAME1);
    texts.shortDays = DaysFromSunday(localeName, LOCALE_SABBREVDAYNAME1);
    texts.am = Info(localeName, LOCALE_S1159);
    texts.pm = Info(localeName, LOCALE_S2359);
    texts.shortDatePattern = Pattern(localeName, LOCALE_SSHORTDATE);
    texts.timePattern = Pattern(localeName, LOCALE_STIMEFORMAT);
    return texts;
}

NumberTexts ReadNumberTexts(const CString& localeName)
{
    NumberTexts texts;
    texts.thousands = Info(localeName, LOCALE_STHOUSAND);
    texts.decimal = Info(localeName, LOCALE_SDECIMAL);
    // Digits separated by semicolons: "3;0" repeats the 3, "3;2;0" repeats the 2, "3" is a single group.
    const CString grouping = Info(localeName, LOCALE_SGROUPING);
    texts.lastGroup = GroupSize(grouping, 0);
    texts.otherGroups = grouping == u"3;0" ? 3 : GroupSize(grouping, 2);
    return texts;
}

} // namespace VyrPlatform::Locale
