/// @file
/// A file's date-times: chosen, computed, staggered and written.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

namespace VyrLibraryFuncs {

/// Date-times of files, and calendar arithmetic.
///
/// A COleDateTime is local time, a FILETIME is UTC; the zero FILETIME means "no value". Local time is converted to a
/// FILETIME by the system's own conversion: on Windows with today's offset from UTC, on Linux with the offset of the
/// date itself. A date-time that cannot be converted (an invalid one, a year before 1601) gives zero.
///
/// No operation throws. Calendar dates are Gregorian, from the year 1400 to 9999.
class VYR_FUNCS_API DateTimeFuncs
{
public:
    /// How the date-times of a list of files are staggered: each gets the start plus a multiple of a step.
    struct STAGGERITEM
    {
        /// Nonzero: the start is `startDate` at `startTime`, whatever base is given.
        int useStartDateTime = 0;
        /// Only its date is read.
        COleDateTime startDate;
        /// Only its time of day is read.
        COleDateTime startTime;
        /// The multiplier: 0 is the index plus `startNumber`, 1 is `startNumber` plus 1 for every file, any other is
        /// the index.
        int numberingMode = 0;
        /// 0: the steps are added. 1: they are subtracted. Any other value: years, months and days are added; hours,
        /// minutes and seconds are ignored.
        int direction = 0;
        int startNumber = 0;
        /// The step; each part may be negative.
        int years = 0;
        int months = 0;
        int days = 0;
        int hours = 0;
        int minutes = 0;
        int seconds = 0;
    };

    DateTimeFuncs();
    ~DateTimeFuncs();
    DateTimeFuncs& operator=(const DateTimeFuncs& other);

    /// A date-time of the file at `path` as text, `yyyy/MM/dd HH:mm:ss`, from FileListUtils.
    /// @param dateTimeTarget  0 modified, 1 created, 2 accessed, any other value the time when the picture was taken
    /// (Exif tag DateTimeOriginal).
    /// @return empty when the file has no such date-time.
    static CString GetOtherDateTime(CString path, int dateTimeTarget);

    /// The same date-time as a file time, without its fraction of a second.
    /// @param isEnabled  0 gives zero without reading the file.
    /// @return zero when the file has no such date-time.
    static FILETIME GetSelectedFileDateTime(CString path, int dateTimeTarget, int isEnabled);

    /// A file time combined from a date, a time and the file's own last-write time.
    /// @param isEnabled  0 gives zero.
    /// @param date  only its year, month and day are read.
    /// @param time  only its hour, minute and second are read.
    /// @param dateTimeMode  1: the time of day is the file's. 2: the date is the file's. 3: both are. Any other value:
    /// neither (DateTimeUtils::GetDateTime).
    /// @return zero when a part is missing: an invalid date-time, or no file.
    static FILETIME GetModifiedFileDateTime(CString path, int isEnabled, COleDateTime date, COleDateTime time,
                                            int dateTimeMode);

    /// Writes times to the file or folder at `path` (a link is followed), all or none.
    ///
    /// A read-only file is refused. A failure writes one line to the log: the name of this operation, the path and the
    /// system's text of the error.
    /// @param created, modified, accessed  null, or the zero file time, keeps that time. On Linux the creation time is
    /// kept in extended attributes; where the file system has none, the operation fails.
    /// @return nonzero on success, else 0.
    static int SetModifiedFileDateTime(CString path, const FILETIME* created, const FILETIME* modified,
                                       const FILETIME* accessed);

    /// The date-time of one file of a staggered list.
    ///
    /// Hours, minutes and seconds are added first, on the clock without daylight-saving time; then years, months and
    /// days as in GetCalDateTime. Multiplier and products are signed 32-bit numbers and wrap.
    /// @param index  the file's index in the list, from 0.
    /// @param isEnabled  0 gives zero.
    /// @param base  the start, later than 30 December 1899 00:00; an earlier or invalid one gives zero.
    /// @return zero also when hours, minutes and seconds leave the calendar.
    static FILETIME GetStaggerFileDateTime(int index, int isEnabled, COleDateTime base, STAGGERITEM item);

    /// `dateTime` moved by years, then months, then days, each applied to the result of the one before; the time of day
    /// is kept.
    ///
    /// The last day of a month stays the last day: 31 January plus one month is 28 or 29 February, 30 April plus one
    /// month is 31 May. Any other day keeps its number, limited to the month's length.
    /// @param years, months, days  each may be negative.
    /// @return `dateTime` unchanged when it is invalid, or when it or a step is outside the years 1400 to 9999; then a
    /// line with the calendar's text, such as "Year is out of valid range: 1400..9999", is written to the log.
    static COleDateTime GetCalDateTime(COleDateTime dateTime, int years, int months, int days);

    /// `dateTime` moved by `hours`, which may be negative, on the clock without daylight-saving time.
    /// @return 30 December 1899 00:00, valid, when `dateTime` is invalid or not later than that, and when the result
    /// leaves the calendar.
    static COleDateTime GetTimeDifferenceDateTime(COleDateTime dateTime, int hours);

    /// One day earlier, as in GetCalDateTime; the time of day is kept, as in the next operations.
    static COleDateTime GetYesterdayDateTime(COleDateTime dateTime);
    /// One month earlier.
    static COleDateTime GetLastMonthDateTime(COleDateTime dateTime);
    /// One year earlier.
    static COleDateTime GetLastYearDateTime(COleDateTime dateTime);
    /// The Sunday of its week; weeks begin on Sunday.
    static COleDateTime GetBeginThisWeekDateTime(COleDateTime dateTime);
    /// The Sunday of the week before.
    static COleDateTime GetBeginLastWeekDateTime(COleDateTime dateTime);
    /// Six days later, whatever the day: for a Sunday, the Saturday of its week.
    static COleDateTime GetEndWeekDateTime(COleDateTime dateTime);

    /// 1 when both are in the same month of the same year, else 0. A null one matches nothing; two invalid ones match.
    static int IsMatchDateMonth(COleDateTime left, COleDateTime right);
    /// 1 when both are on the same day, else 0, under the same rules.
    static int IsMatchDate(COleDateTime left, COleDateTime right);
};

} // namespace VyrLibraryFuncs
