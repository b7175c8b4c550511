/// @file
/// Letter case, and the user's language and region: collation, numbers, names of months and days.
///
/// On Linux the environment names the locale of each: LC_COLLATE, LC_NUMERIC and LC_TIME, before them LC_ALL, after
/// them LANG. Windows has one locale for all three.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <array>
#include <cstddef>

namespace VyrPlatform::Locale {

/// Upper-cases `length` code units in place, one unit to one, the same in every locale: Unicode's simple case mapping
/// (UnicodeData.txt). A letter whose upper case takes more than one unit stays, and so do surrogates.
///
///     "straße" becomes "STRAßE", "scan" becomes "SCAN", also under a Turkish locale.
VYR_PLATFORM_API void ToUpper(char16_t* text, std::size_t length);
/// Lower-cases in the same way.
VYR_PLATFORM_API void ToLower(char16_t* text, std::size_t length);

/// Compares under the user's collation: negative, zero or positive.
[[nodiscard]] VYR_PLATFORM_API int Compare(const CString& left, const CString& right);

/// The words and patterns of dates in the user's language, Gregorian. Patterns use the letters of Unicode's date
/// patterns (yyyy, M, dd, EEEE, HH, h, mm, ss, a) with literal text in apostrophes; their years have four digits, so
/// that a date written with them can be read back, and their blanks are plain ones.
struct DateTexts
{
    /// In the form that stands beside a day ("5 stycznia"), which in some languages differs from that in a list.
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
    /// How many digits the last group has, and each group before it; 0: no grouping.
    int lastGroup = 3;
    int otherGroups = 3;
};

/// Read once for each locale; the reference stays valid for the life of the process.
[[nodiscard]] VYR_PLATFORM_API const DateTexts& GetDateTexts();
[[nodiscard]] VYR_PLATFORM_API const NumberTexts& GetNumberTexts();

/// Makes the calling process follow the locale `name`: such as "de_DE", "de-DE" or "de_DE.UTF-8"; "C", "POSIX" and an
/// unknown one are US English; empty is the user's own again, as it was when it was first asked for. For tests.
VYR_PLATFORM_API void SetLocale(const CString& name);

} // namespace VyrPlatform::Locale
