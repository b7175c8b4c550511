/// @file
/// The patterns in which date-times are written and read.
///
/// A pattern is text with conversions: %Y year (four digits), %y year (two digits), %m month, %d day, %H hour (0 to
/// 23), %I hour (1 to 12), %M minute, %S second, each number of two digits; %-m %-d %-H %-I %-M %-S the same without a
/// leading zero; %B and %b the month's name and its abbreviation, %A and %a those of the day of the week, %p morning or
/// afternoon, in the user's language;
/// %% a percent sign. Anything else stands for itself.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <string_view>

namespace VyrPlatform::DateTimePattern {

/// What the library itself reads back, whatever the locale: yyyy/MM/dd HH:mm:ss.
constexpr std::u16string_view stored = u"%Y/%m/%d %H:%M:%S";

/// The pattern of a format in the letters of Unicode's date patterns, as docs/date-time-formats.md describes it.
[[nodiscard]] VYR_PLATFORM_API CString FromFormat(std::u16string_view format);

/// The pattern of the short date of the user's locale, its year with four digits.
[[nodiscard]] VYR_PLATFORM_API CString ShortDate();
/// The pattern of the time of the user's locale, with seconds.
[[nodiscard]] VYR_PLATFORM_API CString TimeOfDay();

/// `dateTime` written with `pattern`; empty when it is not valid.
[[nodiscard]] VYR_PLATFORM_API CString Write(const COleDateTime& dateTime, std::u16string_view pattern);

/// What a text that is no date-time gives.
[[nodiscard]] VYR_PLATFORM_API COleDateTime Invalid() noexcept;
/// The date-time that all of `text` gives with `pattern`, digit for digit; invalid when it does not.
[[nodiscard]] VYR_PLATFORM_API COleDateTime Read(std::u16string_view text, std::u16string_view pattern);
/// The date-time of a text in one of the usual forms: a date, or a date, blanks and a time, with blanks around them.
///
/// Dates: %Y/%m/%d, %Y-%m-%d, %Y-%b-%d (with the month's English abbreviation, or its name or abbreviation in the
/// user's language), and ShortDate, whose numbers may have one digit or two and its year two or four. Times: %H:%M:%S,
/// %H:%M, and TimeOfDay. Names count in either case, and a two-digit year below 30 is of the 21st century, any other of
/// the 20th.
/// @return invalid for any other text.
[[nodiscard]] VYR_PLATFORM_API COleDateTime ReadUsual(std::u16string_view text);

} // namespace VyrPlatform::DateTimePattern
