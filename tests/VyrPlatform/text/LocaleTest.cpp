// The user's language in letters, order, dates and numbers: one table for both systems.
#include "CaseTable.h"

#include <tests/support/UserLocale.h>

#include <VyrPlatform/text/Locale.h>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <span>
#include <string>
#include <thread>
#include <vector>

using namespace VyrPlatform;
using VyrTests::UserLocale;

namespace {

constexpr const char16_t* testedLocales[] = {u"de_DE", u"tr_TR", u"az", u"ja_JP", u"C"};
constexpr const char16_t* manyLocales[] = {u"en_US", u"en_GB", u"de_DE", u"fr_FR", u"es_ES", u"it_IT",
                                           u"pl_PL", u"ru_RU", u"tr_TR", u"az",    u"ja_JP", u"zh_CN",
                                           u"zh_TW", u"ko_KR", u"hi_IN", u"hu_HU", u"bg_BG", u"sv_SE",
                                           u"pt_BR", u"ar_EG", u"fa_IR", u"th_TH", u"C"};

/// A readable name for failure messages.
std::string Readable(std::u16string_view text)
{
    return testing::PrintToString(std::u16string(text));
}

CString Upper(const CString& text)
{
    return CString(text).MakeUpper();
}

CString Lower(const CString& text)
{
    return CString(text).MakeLower();
}

int Sign(int value)
{
    return (value > 0) - (value < 0);
}

/// Each code unit at its own place.
std::u16string AllUnits()
{
    std::u16string units(0x10000, u'\0');
    std::iota(units.begin(), units.end(), u'\0');
    return units;
}

/// A pattern without its texts in apostrophes.
std::u16string WithoutQuotedTexts(std::u16string_view pattern)
{
    std::u16string letters;
    bool isQuoted = false;
    for (const char16_t unit : pattern) {
        if (unit == u'\'')
            isQuoted = !isQuoted;
        else if (!isQuoted)
            letters += unit;
    }
    return letters;
}

} // namespace

TEST(LocaleTest, LettersHaveTheirCapitalsUnderEveryLocale)
{
    for (const char16_t* name : testedLocales) {
        const UserLocale locale(name);
        EXPECT_EQ(Upper(u"abcxyz 0189 äöüéñçåøșžњжя ωά"), u"ABCXYZ 0189 ÄÖÜÉÑÇÅØȘŽЊЖЯ ΩΆ") << Readable(name);
        EXPECT_EQ(Lower(u"ABCXYZ 0189 ÄÖÜÉÑÇÅØȘŽЊЖЯ ΩΆ"), u"abcxyz 0189 äöüéñçåøșžњжя ωά") << Readable(name);
        EXPECT_EQ(Upper(u"ａｂ"), u"ＡＢ") << Readable(name);
        EXPECT_EQ(Upper(u"日本語カナ"), u"日本語カナ") << Readable(name);
    }
}

TEST(LocaleTest, LetterWhoseCapitalNeedsMoreUnitsStays)
{
    for (const char16_t* name : testedLocales) {
        const UserLocale locale(name);
        EXPECT_EQ(Upper(u"straße ŉ ﬁ ΐ"), u"STRAßE ŉ ﬁ ΐ") << Readable(name);
    }
}

TEST(LocaleTest, EveryLetterHasUnicodesCaseUnderEveryLocale)
{
    const auto expected = [](std::span<const VyrTests::CaseRun> runs) {
        std::u16string units = AllUnits();
        for (const VyrTests::CaseRun& run : runs)
            for (int unit = run.first; unit <= run.last; unit += run.step)
                units[static_cast<std::size_t>(unit)] = static_cast<char16_t>(unit + run.difference);
        return units;
    };
    const std::u16string expectedUpper = expected(VyrTests::upperCaseRuns);
    const std::u16string expectedLower = expected(VyrTests::lowerCaseRuns);
    for (const char16_t* name : testedLocales) {
        const UserLocale locale(name);
        std::u16string upper = AllUnits();
        Locale::ToUpper(upper.data(), upper.size());
        std::u16string lower = AllUnits();
        Locale::ToLower(lower.data(), lower.size());
        for (std::size_t unit = 0; unit < upper.size(); ++unit) {
            EXPECT_EQ(upper[unit], expectedUpper[unit]) << Readable(name) << ": " << std::hex << unit;
            EXPECT_EQ(lower[unit], expectedLower[unit]) << Readable(name) << ": " << std::hex << unit;
        }
    }
}

TEST(LocaleTest, NoLocaleChangesTheLettersI)
{
    for (const char16_t* name : {u"tr_TR", u"tr", u"az", u"az_AZ", u"de_DE", u"ja_JP", u"C", u"en_US"}) {
        const UserLocale locale(name);
        EXPECT_EQ(Upper(u"iıIİ scan.tiff"), u"IIIİ SCAN.TIFF") << Readable(name);
        EXPECT_EQ(Lower(u"iıIİ SCAN.TIFF"), u"iıii scan.tiff") << Readable(name);
        EXPECT_EQ(CString(u"SCAN.TIFF").CompareNoCase(u"scan.tiff"), 0) << Readable(name);
        EXPECT_NE(CString(u"I").CompareNoCase(u"ı"), 0) << Readable(name);
    }
}

TEST(LocaleTest, SurrogatesAreNotChanged)
{
    const UserLocale locale(u"de_DE");
    // U+10428 is a small letter of the Deseret alphabet, which takes two code units.
    const CString text = u"\U00010428a";
    EXPECT_EQ(Upper(text), u"\U00010428A");
    using namespace std::string_view_literals;
    EXPECT_EQ(Upper(CString(u"\xDC80x\xD800"sv)), u"\xDC80X\xD800"sv);
}

TEST(LocaleTest, MappingNothingIsAllowed)
{
    Locale::ToUpper(nullptr, 0);
    Locale::ToLower(nullptr, 0);
    EXPECT_EQ(Upper(u""), u"");
}

TEST(LocaleTest, OrderIsThatOfWordsNotOfCodes)
{
    for (const char16_t* name : testedLocales) {
        const UserLocale locale(name);
        const std::vector<CString> sorted = {u"", u"1", u"2", u"a", u"A", u"ab", u"B", u"c", u"cote", u"côte", u"Z"};
        for (std::size_t i = 0; i < sorted.size(); ++i) {
            for (std::size_t j = 0; j < sorted.size(); ++j)
                EXPECT_EQ(Sign(Locale::Compare(sorted[i], sorted[j])), Sign(static_cast<int>(i) - static_cast<int>(j)))
                    << Readable(name) << ": " << Readable(sorted[i]) << ", " << Readable(sorted[j]);
        }
    }
}

TEST(LocaleTest, EachLanguageHasAnOrderOfItsOwn)
{
    struct Case
    {
        const char16_t* locale;
        std::vector<CString> sorted;
    };
    const std::vector<Case> cases = {
        {u"de_DE", {u"a", u"ä", u"az", u"b", u"o", u"ö", u"oz", u"p", u"z"}},
        {u"C", {u"a", u"ä", u"az", u"b", u"o", u"ö", u"oz", u"p", u"z"}},
        {u"sv_SE", {u"a", u"b", u"z", u"å", u"ä", u"ö"}},
        {u"tr_TR", {u"c", u"cz", u"ç", u"d", u"g", u"ğ", u"h", u"ı", u"j", u"o", u"ö", u"p", u"s", u"ş", u"t"}},
        {u"az", {u"c", u"cz", u"ç", u"d", u"e", u"ə", u"f", u"h", u"x", u"ı"}},
        {u"ja_JP", {u"a", u"b", u"あ", u"い", u"か", u"さ", u"ん"}},
    };
    for (const auto& [name, sorted] : cases) {
        const UserLocale locale(name);
        for (std::size_t i = 1; i < sorted.size(); ++i)
            EXPECT_LT(Locale::Compare(sorted[i - 1], sorted[i]), 0)
                << Readable(name) << ": " << Readable(sorted[i - 1]) << ", " << Readable(sorted[i]);
    }
}

TEST(LocaleTest, EqualTextsCompareEqual)
{
    const UserLocale locale(u"de_DE");
    EXPECT_EQ(Locale::Compare(u"", u""), 0);
    EXPECT_EQ(Locale::Compare(u"Straße", u"Straße"), 0);
}

TEST(LocaleTest, ThreadsMayCompareAtOnce)
{
    const UserLocale locale(u"tr_TR");
    std::vector<std::thread> threads;
    std::vector<int> wrong(4);
    for (int& count : wrong) {
        threads.emplace_back([&count] {
            for (int i = 0; i < 2000; ++i)
                count += Locale::Compare(u"cz", u"ç") >= 0 || Locale::GetDateTexts().months[0] != u"Ocak";
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(wrong, std::vector<int>(4));
}

TEST(LocaleTest, NumbersAreSeparatedAsTheLanguageDoes)
{
    struct Case
    {
        const char16_t* locale;
        const char16_t* thousands;
        const char16_t* decimal;
        int lastGroup;
        int otherGroups;
    };
    for (const Case& expected :
         {Case{u"de_DE", u".", u",", 3, 3}, Case{u"tr_TR", u".", u",", 3, 3}, Case{u"az", u".", u",", 3, 3},
          Case{u"ja_JP", u",", u".", 3, 3}, Case{u"C", u",", u".", 3, 3}, Case{u"hi_IN", u",", u".", 3, 2}}) {
        const UserLocale locale(expected.locale);
        const Locale::NumberTexts& texts = Locale::GetNumberTexts();
        EXPECT_EQ(texts.thousands, expected.thousands) << Readable(expected.locale);
        EXPECT_EQ(texts.decimal, expected.decimal) << Readable(expected.locale);
        EXPECT_EQ(texts.lastGroup, expected.lastGroup) << Readable(expected.locale);
        EXPECT_EQ(texts.otherGroups, expected.otherGroups) << Readable(expected.locale);
    }
}

TEST(LocaleTest, MonthsAndDaysAreNamedInTheLanguage)
{
    struct Case
    {
        const char16_t* locale;
        const char16_t* january;
        const char16_t* december;
        const char16_t* sunday;
        const char16_t* saturday;
    };
    for (const Case& expected : {Case{u"de_DE", u"Januar", u"Dezember", u"Sonntag", u"Samstag"},
                                 Case{u"tr_TR", u"Ocak", u"Aralık", u"Pazar", u"Cumartesi"},
                                 Case{u"ja_JP", u"1月", u"12月", u"日曜日", u"土曜日"},
                                 Case{u"C", u"January", u"December", u"Sunday", u"Saturday"},
                                 // With a day in front of it, a month is in the genitive.
                                 Case{u"pl_PL", u"stycznia", u"grudnia", u"niedziela", u"sobota"}}) {
        const UserLocale locale(expected.locale);
        const Locale::DateTexts& texts = Locale::GetDateTexts();
        EXPECT_EQ(texts.months.front(), expected.january) << Readable(expected.locale);
        EXPECT_EQ(texts.months.back(), expected.december) << Readable(expected.locale);
        EXPECT_EQ(texts.days.front(), expected.sunday) << Readable(expected.locale);
        EXPECT_EQ(texts.days.back(), expected.saturday) << Readable(expected.locale);
    }
}

TEST(LocaleTest, EnglishNamesAreWhole)
{
    const UserLocale locale(u"C");
    const Locale::DateTexts& texts = Locale::GetDateTexts();
    const std::array<CString, 12> months = {u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun",
                                            u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};
    const std::array<CString, 7> days = {u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat"};
    EXPECT_EQ(texts.shortMonths, months);
    EXPECT_EQ(texts.shortDays, days);
    EXPECT_EQ(texts.am, u"AM");
    EXPECT_EQ(texts.pm, u"PM");
    EXPECT_EQ(texts.shortDatePattern, u"M/d/yyyy");
    EXPECT_EQ(texts.timePattern, u"h:mm:ss a");
}

TEST(LocaleTest, NoTextOfAnyLanguageIsEmpty)
{
    for (const char16_t* name : manyLocales) {
        const UserLocale locale(name);
        const Locale::DateTexts& texts = Locale::GetDateTexts();
        const auto hasEmpty = [](const auto& list) {
            return std::any_of(list.begin(), list.end(), [](const CString& text) { return text.IsEmpty(); });
        };
        EXPECT_FALSE(hasEmpty(texts.months) || hasEmpty(texts.shortMonths)) << Readable(name);
        EXPECT_FALSE(hasEmpty(texts.days) || hasEmpty(texts.shortDays)) << Readable(name);
        EXPECT_FALSE(texts.am.IsEmpty() || texts.pm.IsEmpty()) << Readable(name);
        EXPECT_NE(texts.am, texts.pm) << Readable(name);
    }
}

TEST(LocaleTest, PatternsKeepToTheirLettersAndFourDigitYears)
{
    for (const char16_t* name : manyLocales) {
        const UserLocale locale(name);
        const Locale::DateTexts& texts = Locale::GetDateTexts();
        const std::u16string date = WithoutQuotedTexts(texts.shortDatePattern);
        const std::u16string time = WithoutQuotedTexts(texts.timePattern);
        EXPECT_NE(date.find(u"yyyy"), std::u16string::npos) << Readable(name) << Readable(date);
        EXPECT_NE(date.find(u'M'), std::u16string::npos) << Readable(name) << Readable(date);
        EXPECT_NE(date.find(u'd'), std::u16string::npos) << Readable(name) << Readable(date);
        EXPECT_NE(time.find(u"mm"), std::u16string::npos) << Readable(name) << Readable(time);
        EXPECT_NE(time.find(u"ss"), std::u16string::npos) << Readable(name) << Readable(time);
        for (const char16_t unit : date + time) {
            const bool isLetter = (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
            EXPECT_TRUE(!isLetter || std::u16string_view(u"yMdEHhmsa").find(unit) != std::u16string_view::npos)
                << Readable(name) << Readable(date + time);
            EXPECT_TRUE(unit != u'\u00A0' && unit != u'\u202F' && unit != u'\u200F')
                << Readable(name) << Readable(date + time);
        }
    }
}

TEST(LocaleTest, TextsStayWhereTheyAreWhenTheLocaleChanges)
{
    const UserLocale german(u"de_DE");
    const Locale::DateTexts& texts = Locale::GetDateTexts();
    const Locale::NumberTexts& numbers = Locale::GetNumberTexts();
    {
        const UserLocale turkish(u"tr_TR");
        EXPECT_EQ(Locale::GetDateTexts().months[0], u"Ocak");
    }
    EXPECT_EQ(texts.months[0], u"Januar");
    EXPECT_EQ(numbers.thousands, u".");
    const UserLocale again(u"de_DE");
    EXPECT_EQ(&Locale::GetDateTexts(), &texts);
}

TEST(LocaleTest, NamesOfOneLocaleInEveryFormMeanTheSame)
{
    for (const char16_t* name : {u"de_DE", u"de-DE", u"de_DE.UTF-8", u"de_DE@euro", u"de"}) {
        const UserLocale locale(name);
        EXPECT_EQ(Locale::GetDateTexts().months[2], u"März") << Readable(name);
    }
    for (const char16_t* name : {u"C", u"POSIX", u"C.UTF-8", u"en_US.UTF-8"}) {
        const UserLocale locale(name);
        EXPECT_EQ(Locale::GetNumberTexts().thousands, u",") << Readable(name);
        EXPECT_LT(Locale::Compare(u"a", u"B"), 0) << Readable(name);
    }
}

TEST(LocaleTest, UnknownLocaleHasTexts)
{
    for (const char16_t* name : {u"xx_YY", u"not a locale", u"@", u"_", u"....", u"\xD800"}) {
        const UserLocale locale(name);
        EXPECT_EQ(Upper(u"aä"), u"AÄ") << Readable(name);
        EXPECT_LT(Locale::Compare(u"a", u"b"), 0) << Readable(name);
        EXPECT_FALSE(Locale::GetDateTexts().months[0].IsEmpty()) << Readable(name);
        EXPECT_FALSE(Locale::GetDateTexts().shortDatePattern.IsEmpty()) << Readable(name);
        EXPECT_FALSE(Locale::GetNumberTexts().decimal.IsEmpty()) << Readable(name);
    }
}
