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
/// A COleDateTime is local time, a FILETIME is UTC; the zero FILETIME stands for "no value". Local time becomes a
/// FILETIME by the system's own conversion: on Windows with today's offset from UTC, on Linux with the offset of the
/// date itself. What cannot be one (a date-time that is not valid, a year before 1601) gives zero.
///
/// Nothing here throws. Calendar dates are Gregorian, from the year 1400 to 9999.
class VYR_FUNCS_API DateTimeFuncs
{
public:
    /// How the date-times of a list of files are staggered: each gets the start plus a multiple of a step.
    struct STAGGERITEM
    {
        /// Nonzero: the start is `startDate` at `startTime`, whatever base the caller gives.
        int useStartDateTime = 0;
        /// Its date counts.
        COleDateTime startDate;
        /// Its time of day counts.
        COleDateTime startTime;
        /// The multiplier: 0 the index plus `startNumber`, 1 `startNumber` plus 1 for every file, other the index.
        int numberingMode = 0;
        /// 0: the steps are added. 1: they are subtracted. Any other value: years, months and days are added; hours,
        /// minutes and seconds are left out.
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

    /// One of the date-times of the file at `path` as text, `yyyy/MM/dd HH:mm:ss`, as FileListUtils gives it.
    /// @param dateTimeTarget  0 modified, 1 created, 2 accessed, any other value the moment at which the picture was
    ///     taken (Exif tag DateTimeOriginal).
    /// @return empty when the file has no such date-time.
    static CString GetOtherDateTime(CString path, int dateTimeTarget);

    /// The same date-time as a file time, its fraction of a second dropped.
    /// @param isEnabled  0 gives zero, and the file is not looked at.
    /// @return zero when the file has no such date-time.
    static FILETIME GetSelectedFileDateTime(CString path, int dateTimeTarget, int isEnabled);

    /// A file time put together from a date, a time and the file's own last-write time.
    /// @param isEnabled  0 gives zero.
    /// @param date  its year, month and day count.
    /// @param time  its hour, minute and second count.
    /// @param dateTimeMode  1: the time of day is the file's. 2: the date is. 3: both are. Any other value: neither
    ///     (DateTimeUtils::GetDateTime).
    /// @return zero when a part is missing: a date-time that is not valid, a file that is not there.
    static FILETIME GetModifiedFileDateTime(CString path, int isEnabled, COleDateTime date, COleDateTime time,
                                            int dateTimeMode);

    /// Writes times to the file or folder at `path` (a link is followed), all or none.
    ///
    /// A read-only file is refused. Where it fails, one line goes to the log: the name of this operation, the path and
    /// the system's text of the error.
    /// @param created, modified, accessed  null, or the zero file time, leaves that time as it is. On Linux the
    /// creation
    ///     time is kept in extended attributes; where the file system has none, the operation fails.
    /// @return nonzero on success, else 0.
    static int SetModifiedFileDateTime(CString path, const FILETIME* created, const FILETIME* modified,
                                       const FILETIME* accessed);

    /// The date-time of one file of a staggered list.
    ///
    /// Hours, minutes and seconds are counted first, on the clock without daylight-saving time; then years, months and
    /// days as GetCalDateTime counts them. Multiplier and products are signed 32-bit numbers and wrap.
    /// @param index  the file's place in the list, from 0.
    /// @param isEnabled  0 gives zero.
    /// @param base  the start, later than 30 December 1899 00:00; any other, and one that is not valid, gives zero.
    /// @return zero also when hours, minutes and seconds lead out of the calendar.
    static FILETIME GetStaggerFileDateTime(int index, int isEnabled, COleDateTime base, STAGGERITEM item);

    /// `dateTime` moved by years, then months, then days, each on the result of the one before; the time of day stays.
    ///
    /// The last day of a month stays the last day: 31 January plus one month is 28 or 29 February, 30 April plus one
    /// month is 31 May. Any other day keeps its number, cut down to the month's length.
    /// @param years, months, days  each may be negative.
    /// @return `dateTime` unchanged when it is not valid, and when it or a step lies outside the years 1400 to 9999;
    ///     then a line with the calendar's text, such as "Year is out of valid range: 1400..9999", goes to the log.
    static COleDateTime GetCalDateTime(COleDateTime dateTime, int years, int months, int days);

    /// `dateTime` moved by `hours`, which may be negative, on the clock without daylight-saving time.
    /// @return 30 December 1899 00:00, valid, when `dateTime` is not valid or not later than that, and when the result
    ///     leaves the calendar.
    static COleDateTime GetTimeDifferenceDateTime(COleDateTime dateTime, int hours);

    /// One day earlier, as GetCalDateTime counts; so are the following. The time of day stays.
    static COleDateTime GetYesterdayDateTime(COleDateTime dateTime);
    /// One month earlier.
    static COleDateTime GetLastMonthDateTime(COleDateTime dateTime);
    /// One year earlier.
    static COleDateTime GetLastYearDateTime(COleDateTime dateTime);
    /// The Sunday of its week; weeks begin on Sunday.
    static COleDateTime GetBeginThisWeekDateTime(COleDateTime dateTime);
    /// The Sunday of the week before.
    static COleDateTime GetBeginLastWeekDateTime(COleDateTime dateTime);
    /// Six days later, whatever the day: the Saturday of the week whose Sunday it is given.
    static COleDateTime GetEndWeekDateTime(COleDateTime dateTime);

    /// 1 when both are of the same month of the same year, else 0. One that is null matches nothing; two that are
    /// invalid match each other.
    static int IsMatchDateMonth(COleDateTime left, COleDateTime right);
    /// 1 when both are of the same day, else 0, under the same rules.
    static int IsMatchDate(COleDateTime left, COleDateTime right);
};

} // namespace VyrLibraryFuncs
