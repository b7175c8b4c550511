/// @file
/// Letter case, and the user's language and region: collation, numbers, names of months and days.
///
/// On Linux each has its variable in the environment: LC_COLLATE, LC_NUMERIC and LC_TIME. LC_ALL takes precedence; LANG
/// is the fallback. Windows has one locale for all three.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <array>
#include <cstddef>

namespace VyrPlatform::Locale {

/// Upper-cases `length` code units in place, one code unit to one, the same in every locale: Unicode's simple case
/// mapping (UnicodeData.txt). A letter whose upper case takes more than one code unit is kept, and so are surrogates.
///
///     "straße" becomes "STRAßE", "scan" becomes "SCAN", also under a Turkish locale.
VYR_PLATFORM_API void ToUpper(char16_t* text, std::size_t length);
/// Lower-cases in the same way.
VYR_PLATFORM_API void ToLower(char16_t* text, std::size_t length);

/// Compares by the user's collation: negative, zero or positive.
[[nodiscard]] VYR_PLATFORM_API int Compare(const CString& left, const CString& right);

/// The words and patterns of dates in the user's language, Gregorian. Patterns use the letters of Unicode's date
/// patterns (yyyy, M, dd, EEEE, HH, h, mm, ss, a) with literal text in apostrophes. Their years have four digits, so
/// that a written date can be read back, and their blanks are U+0020.
struct DateTexts
{
    /// In the form for use with a day ("5 stycznia"), which differs from the standalone form in some languages.
    std::array<CString, 12> months;
    std::array<CString, 12> shortMonths;
    /// From Sunday on.
    std::array<CString, 7> days;
    std::array<CString, 7> shortDays;
    /// "AM" and "PM" where the language has no words of its own.
    CString am;
    CString pm;
    CString shortDatePattern;
    /// With seconds.
    CString timePattern;
};

/// The separators of numbers: "." and "," write 1234.5 as "1.234,5" in German.
struct NumberTexts
{
    CString thousands;
    CString decimal;
    /// The number of digits of the last group, and of each group before it; 0: no grouping.
    int lastGroup = 3;
    int otherGroups = 3;
};

/// Read once for each locale; the reference stays valid for the life of the process.
[[nodiscard]] VYR_PLATFORM_API const DateTexts& GetDateTexts();
[[nodiscard]] VYR_PLATFORM_API const NumberTexts& GetNumberTexts();

/// Makes the process use the locale `name`, such as "de_DE", "de-DE" or "de_DE.UTF-8". "C", "POSIX" and an unknown name
/// are US English; an empty name is the user's own locale as first read. For tests.
VYR_PLATFORM_API void SetLocale(const CString& name);

} // namespace VyrPlatform::Locale
