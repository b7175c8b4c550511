/// @file
/// Reads date-times of files and texts, writes them as text, and computes with them.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <cstdint>

namespace VyrLibraryUtils {

/// Date-times in local time. Fractions of a second are dropped. An invalid result has the status invalid.
///
/// docs/date-time-formats.md describes the formats of users and the patterns made from them.
class VYR_UTILS_API DateTimeUtils
{
public:
    DateTimeUtils();
    ~DateTimeUtils();
    DateTimeUtils& operator=(const DateTimeUtils&);

    /// The last-write time of the file or folder at `path`; invalid when there is none.
    static COleDateTime GetDateModified(CString path);
    /// Its creation time.
    static COleDateTime GetDateCreated(CString path);
    /// Its last-access time.
    static COleDateTime GetDateAccessed(CString path);

    /// Reads `yyyy:MM:dd HH:mm:ss`, the date-time text of Exif 2.32, 4.6.5 (tag DateTimeOriginal), digits throughout.
    /// @return invalid for anything else: blanks or zeros instead of digits, an impossible date, another length.
    static COleDateTime GetExifDateTime(CString text);
    /// Reads `yyyyMMdd`, exactly eight digits; invalid for anything else and for impossible dates.
    static COleDateTime GetInstallDateTime(CString text);
    /// Reads a date, or a date, blanks and a time; blanks around it are skipped.
    ///
    /// Dates: `yyyy/MM/dd`, `yyyy-MM-dd`, `yyyy-MMM-dd` (with the English abbreviation of the month, or its name or
    /// abbreviation in the user's language) and the short form of the user's locale, in which a two-digit year below 30
    /// is in the 21st century, any other in the 20th. Times: `HH:mm:ss`, `HH:mm` and the time of the user's locale.
    /// @param mode not read; the system passes 1.
    /// @param flags not read; the system passes 0.
    /// @param locale not read: every value means the user's locale, as 1024 does.
    /// @return invalid for anything else, such as a `T` between date and time.
    static COleDateTime GetParseDateTime(CString text, int mode, std::uint32_t flags, std::uint32_t locale);

    /// Turns the format of a user, such as `yyyyMMdd_HHmmss`, into the pattern that GetOleDateTimeFormat reads.
    ///
    /// yyyy yy MMMM MMM MM M dd d EEEE EEE HH H hh h mm m ss s a are parts of the date-time; the longest run counts.
    /// Everything else is literal, and so is text in apostrophes ('' is one apostrophe; without a closing one the rest
    /// is literal). `<Token>` is kept, whatever the token; a `<` without a `>` is literal.
    ///
    ///     GetDateTimeFormat(u"yyyy-MM-dd 'at' HH", u"") gives "%Y-%m-%d at %H".
    /// @param reserved not read; the system passes an empty text.
    static CString GetDateTimeFormat(CString format, CString reserved);
    /// `dateTime` written with `pattern`: %Y %y %m %d %H %I %M %S, the same without padding as %-m and so on, %B %b %A
    /// %a %p in the user's language, %% for a percent sign; anything else is literal.
    /// @return empty for an invalid date-time.
    static CString GetOleDateTimeFormat(COleDateTime dateTime, CString pattern);
    /// The date in the short form of the user's locale, with a year of four digits; empty for an invalid one.
    static CString GetFormatedDate(COleDateTime dateTime);
    /// The result of GetFormatedDate, a blank, and the time with seconds in the form of the user's locale.
    static CString GetFormatedDateTime(COleDateTime dateTime);

    /// 00:00:00 of the same day; an invalid date-time is returned unchanged.
    static COleDateTime GetBeginDateTime(COleDateTime dateTime);
    /// 23:59:59 of the same day; an invalid date-time is returned unchanged.
    static COleDateTime GetEndDateTime(COleDateTime dateTime);
    /// The calendar date of `date` with the time of day of `time`; invalid when either is.
    static COleDateTime CombineDateTime(COleDateTime date, COleDateTime time);
    /// One calendar part, of `dateTime` or of the last-write time of the file at `path`.
    ///
    /// The file's time is read such that writing it back gives the same instant.
    /// @param mode 1: the time of day is the file's. 2: the date is the file's. 3: both are. Any other value: neither.
    /// @param part 0 year, 1 month, 2 day, 3 hour, 4 minute, 5 second.
    /// @return -1 for another part, and where the date-time is invalid or the file is missing.
    static int GetDateTime(CString path, COleDateTime dateTime, int mode, int part);

    /// The current date-time as `yyyy/MM/dd HH:mm:ss`, which GetParseDateTime reads back.
    static CString GetCurrentDateTime();
    /// The current date-time as `yyyy/MM/dd HH:mm:ss`, for the first field of a log line.
    static CString GetCurrentDateTimeEx();
};

} // namespace VyrLibraryUtils
