#include <VyrPlatform/common/text/DatePattern.h>
#include <VyrPlatform/common/text/SystemLocale.h>
#include <VyrPlatform/text/Encoding.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <unicode/uchar.h>
#include <unicode/ucol.h>
#include <unicode/udat.h>
#include <unicode/uloc.h>
#include <unicode/unum.h>

namespace VyrPlatform::Locale {

namespace {

/// The variable of the environment that names the locale of `category`.
const char* VariableOf(Category category) noexcept
{
    switch (category) {
    case Category::Collation:
        return "LC_COLLATE";
    case Category::Dates:
        return "LC_TIME";
    case Category::Numbers:
        return "LC_NUMERIC";
    }
    return "LANG";
}

/// The text that `ask(buffer, size, error)` writes; empty when it fails.
template <class Ask>
CString AskForText(Ask ask)
{
    std::u16string text(64, u'\0');
    UErrorCode error = U_ZERO_ERROR;
    auto size = static_cast<int32_t>(text.size());
    const int32_t length = ask(text.data(), size, &error);
    if (error == U_BUFFER_OVERFLOW_ERROR) {
        error = U_ZERO_ERROR;
        text.resize(static_cast<std::size_t>(length) + 1);
        ask(text.data(), length + 1, &error);
    }
    if (U_FAILURE(error))
        return {};
    return std::u16string_view(text).substr(0, static_cast<std::size_t>(length));
}

using DateFormat = std::unique_ptr<UDateFormat, decltype(&udat_close)>;

DateFormat OpenDateFormat(UDateFormatStyle timeStyle, UDateFormatStyle dateStyle, const CString& localeName)
{
    // Dates of files are Gregorian, even where another calendar is in use.
    const std::string name = Encoding::ToUtf8(localeName + u"@calendar=gregorian");
    UErrorCode error = U_ZERO_ERROR;
    return {udat_open(timeStyle, dateStyle, name.c_str(), nullptr, 0, nullptr, 0, &error), udat_close};
}

/// A run of a rare letter as the nearest one of those that Locale documents.
CString UsualLetters(std::u16string_view run)
{
    switch (run.front()) {
    case u'b':
    case u'B':
        // Parts of the day, such as "at night".
        return u"a";
    case u'k':
        return CString(u'H', static_cast<int>(run.size()));
    case u'K':
        return CString(u'h', static_cast<int>(run.size()));
    case u'L':
        return CString(u'M', static_cast<int>(run.size()));
    default:
        return run;
    }
}

CString Pattern(const DateFormat& format)
{
    return ReplaceLetterRuns(AskForText([&](UChar* buffer, int32_t size, UErrorCode* error) {
                                 return udat_toPattern(format.get(), false, buffer, size, error);
                             }),
                             UsualLetters);
}

CString Symbol(const DateFormat& format, UDateFormatSymbolType type, std::size_t index)
{
    return AskForText([&](UChar* buffer, int32_t size, UErrorCode* error) {
        return udat_getSymbols(format.get(), type, static_cast<int32_t>(index), buffer, size, error);
    });
}

template <std::size_t Count>
std::array<CString, Count> Symbols(const DateFormat& format, UDateFormatSymbolType type, std::size_t first)
{
    std::array<CString, Count> symbols;
    for (std::size_t i = 0; i < Count; ++i)
        symbols[i] = Symbol(format, type, first + i);
    return symbols;
}

} // namespace

CString UserLocaleName(Category category)
{
    for (const char* const variable : {"LC_ALL", VariableOf(category), "LANG"})
        if (const char* const name = std::getenv(variable); name && *name)
            return SystemLocaleName(Encoding::FromUtf8(name));
    return SystemLocaleName(u"C");
}

CString SystemLocaleName(const CString& name)
{
    // Without its keywords: ICU's date formats crash on some invalid ones.
    char canonical[ULOC_FULLNAME_CAPACITY] = "";
    char baseName[ULOC_FULLNAME_CAPACITY] = "";
    UErrorCode error = U_ZERO_ERROR;
    uloc_canonicalize(Encoding::ToUtf8(name).c_str(), canonical, sizeof canonical, &error);
    if (error == U_ZERO_ERROR)
        uloc_getBaseName(canonical, baseName, sizeof baseName, &error);
    const bool isKnown = error == U_ZERO_ERROR && *uloc_getISO3Language(baseName) != '\0';
    // ICU has neither thousands separators nor an order of words for the POSIX locale.
    return isKnown && std::string_view(baseName) != "en_US_POSIX" ? Encoding::FromUtf8(baseName) : CString(u"en_US");
}

char16_t SystemUpper(char16_t unit) noexcept
{
    const UChar32 capital = u_toupper(unit);
    return capital <= 0xFFFF ? static_cast<char16_t>(capital) : unit;
}

char16_t SystemLower(char16_t unit) noexcept
{
    const UChar32 small = u_tolower(unit);
    return small <= 0xFFFF ? static_cast<char16_t>(small) : unit;
}

Collation MakeCollation(const CString& localeName)
{
    UErrorCode error = U_ZERO_ERROR;
    const std::shared_ptr<UCollator> collator(ucol_open(Encoding::ToUtf8(localeName).c_str(), &error), ucol_close);
    if (U_FAILURE(error))
        return [](const CString& left, const CString& right) {
            return left.View().compare(right);
        };
    return [collator](const CString& left, const CString& right) {
        return static_cast<int>(
            ucol_strcoll(collator.get(), left.GetString(), left.GetLength(), right.GetString(), right.GetLength()));
    };
}

DateTexts ReadDateTexts(const CString& localeName)
{
    const DateFormat dates = OpenDateFormat(UDAT_NONE, UDAT_SHORT, localeName);
    const DateFormat times = OpenDateFormat(UDAT_MEDIUM, UDAT_NONE, localeName);
    DateTexts texts;
    texts.months = Symbols<12>(dates, UDAT_MONTHS, 0);
    texts.shortMonths = Symbols<12>(dates, UDAT_SHORT_MONTHS, 0);
    texts.days = Symbols<7>(dates, UDAT_WEEKDAYS, UCAL_SUNDAY);
    texts.shortDays = Symbols<7>(dates, UDAT_SHORT_WEEKDAYS, UCAL_SUNDAY);
    texts.am = Symbol(dates, UDAT_AM_PMS, UCAL_AM);
    texts.pm = Symbol(dates, UDAT_AM_PMS, UCAL_PM);
    texts.shortDatePattern = Pattern(dates);
    texts.timePattern = Pattern(times);
    return texts;
}

NumberTexts ReadNumberTexts(const CString& localeName)
{
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<UNumberFormat, decltype(&unum_close)> format(
        unum_open(UNUM_DECIMAL, nullptr, 0, Encoding::ToUtf8(localeName).c_str(), nullptr, &error), unum_close);
    if (U_FAILURE(error))
        return {u",", u"."};
    const auto symbol = [&](UNumberFormatSymbol which) {
        return AskForText([&](UChar* buffer, int32_t size, UErrorCode* code) {
            return unum_getSymbol(format.get(), which, buffer, size, code);
        });
    };
    NumberTexts texts;
    texts.thousands = symbol(UNUM_GROUPING_SEPARATOR_SYMBOL);
    texts.decimal = symbol(UNUM_DECIMAL_SEPARATOR_SYMBOL);
    const bool groups = unum_getAttribute(format.get(), UNUM_GROUPING_USED) != 0;
    texts.lastGroup = groups ? unum_getAttribute(format.get(), UNUM_GROUPING_SIZE) : 0;
    const int secondary = unum_getAttribute(format.get(), UNUM_SECONDARY_GROUPING_SIZE);
    texts.otherGroups = groups && secondary > 0 ? secondary : texts.lastGroup;
    return texts;
}

} // namespace VyrPlatform::Locale
