/// @file
/// The patterns in which date-times are written and read.
///
/// A pattern is text with conversions: %Y year (four digits), %y year (two digits), %m month, %d day, %H hour (0 to
/// 23), %I hour (1 to 12), %M minute, %S second, each number of two digits; %-m %-d %-H %-I %-M %-S the same without a
/// leading zero; %B and %b the month's name and its abbreviation, %A and %a those of the day of the week, %p morning or
/// afternoon, in the user's language;
/// %% a percent sign. Anything else is literal.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <string_view>

namespace VyrPlatform::DateTimePattern {

/// The format that the library itself writes and reads in every locale: yyyy/MM/dd HH:mm:ss.
constexpr std::u16string_view stored = u"%Y/%m/%d %H:%M:%S";

/// The pattern of a format in the letters of Unicode's date patterns, as docs/date-time-formats.md describes it.
[[nodiscard]] VYR_PLATFORM_API CString FromFormat(std::u16string_view format);

/// The pattern of the short date of the user's locale, its year with four digits.
[[nodiscard]] VYR_PLATFORM_API CString ShortDate();
/// The pattern of the time of the user's locale, with seconds.
[[nodiscard]] VYR_PLATFORM_API CString TimeOfDay();

/// `dateTime` written with `pattern`; empty when it is not valid.
[[nodiscard]] VYR_PLATFORM_API CString Write(const COleDateTime& dateTime, std::u16string_view pattern);

/// The result for texts that are not date-times.
[[nodiscard]] VYR_PLATFORM_API COleDateTime Invalid() noexcept;
/// The date-time of `text`, which must match `pattern` completely, digit for digit; otherwise invalid.
[[nodiscard]] VYR_PLATFORM_API COleDateTime Read(std::u16string_view text, std::u16string_view pattern);
/// The date-time of a text in a usual form: a date, or a date, blanks and a time, with blanks around them.
///
/// Dates: %Y/%m/%d, %Y-%m-%d, %Y-%b-%d (with the month's English abbreviation, or its name or abbreviation in the
/// user's language), and ShortDate, whose numbers may have one digit or two and its year two or four. Times: %H:%M:%S,
/// %H:%M, and TimeOfDay. Names match in either case. A two-digit year below 30 is in the 21st century, any other in the
/// 20th.
/// @return invalid for any other text.
[[nodiscard]] VYR_PLATFORM_API COleDateTime ReadUsual(std::u16string_view text);

} // namespace VyrPlatform::DateTimePattern
